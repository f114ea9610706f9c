// Composes the desktop platform and the console; nothing else.

#include <QApplication>

#include "desktop/command_line.h"
#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
#include "desktop/system/bus_finder.h"
#include "desktop/system/end_signals.h"
#include "desktop/windows/fitting_scale.h"
#include "forms/main_form.h"
#include "program/program.h"
#include "program/start_up.h"

int main(int argc, char** argv) {
  pawnfield::IgnoreBrokenPipes();
  pawnfield::AnswerQuestions(argc, argv);
  pawnfield::HideSilentBus();
  pawnfield::FitScaleToMonitor(argc, argv);
  QApplication application(argc, argv);
  pawnfield::NameApplication();
  const auto set = pawnfield::SetToLoad(application);
  pawnfield::PrepareApplication();
  const pawnfield::DesktopPlaces places;
  pawnfield::DesktopProgram program(places);
  pawnfield::Show& show = program.TheShow();
  const pawnfield::EndSignals endSignals([&show] { pawnfield::EndWithoutAsking(show); });
  const pawnfield::LastWords lastWords(show.frmMain, [&show] { pawnfield::SaveSettingsAtDeath(show); });
  if (places.copyFailure) pawnfield::ReportCopyFailure(show.platform.dialogs, *places.copyFailure);
  if (set) show.consoleDialog.FileName = pawnfield::SpelledPath(*set);
  pawnfield::Main(show);
  return QApplication::exec();
}
