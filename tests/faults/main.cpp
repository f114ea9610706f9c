// pawnfield_faults MODE FOLDER [KILLS]: tries every writer of the program below the folder; tools/check-faults runs it
// in the places that each mode is for. Ends with 1 when a file was torn, or something was not said.
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "modes.h"

int main(int argc, char** argv) {
  using namespace pawnfield::faults;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc < 3) return 2;
  const std::string mode = argv[1];
  const QString root = QString::fromLocal8Bit(argv[2]);
  int faults = -1;
  if (mode == "kill") faults = RunKills(root, argc > 3 ? std::atoi(argv[3]) : 200);
  if (mode == "record") faults = RunRecordKills(root, argc > 3 ? std::atoi(argv[3]) : 200);
  if (mode == "record-disks") faults = RunRecordDisks(root);
  if (mode == "full") faults = RunFullDisk(root);
  if (mode == "closed") faults = RunNoAccess(root);
  if (mode == "prepare") faults = PrepareReadOnly(root);
  if (mode == "readonly") faults = RunReadOnly(root);
  if (mode == "kept") faults = RunKept(root);
  if (mode == "gone") faults = RunVanished(root);
  if (mode == "hostile") faults = RunHostile(root);
  if (faults < 0) return 2;
  if (faults > 0) std::printf("%d faults\n", faults);
  return faults == 0 ? 0 : 1;
}
