// Composes the desktop platform and the console; nothing else.

#include <QApplication>

#include "desktop/desktop_program.h"
#include "desktop/windows/fitting_scale.h"
#include "program/program.h"

int main(int argc, char** argv) {
  pawnfield::FitScaleToMonitor(argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Pawnfield");
  pawnfield::PrepareApplication();
  const pawnfield::DesktopPlaces places;
  pawnfield::DesktopProgram program(places);
  if (places.copyFailure) pawnfield::ReportCopyFailure(program.TheShow().platform.dialogs, *places.copyFailure);
  pawnfield::Main(program.TheShow());
  return QApplication::exec();
}
