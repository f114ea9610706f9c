// Composes the desktop platform and the console; nothing else.

#include <QApplication>

#include "engine/start_up.h"
#include "platform/desktop/desktop_program.h"
#include "platform/desktop/fitting_scale.h"

int main(int argc, char** argv) {
  pawnfield::FitScaleToMonitor(argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Pawnfield");
  pawnfield::PrepareApplication();
  pawnfield::DesktopProgram program;
  pawnfield::Main(program.TheShow());
  return QApplication::exec();
}
