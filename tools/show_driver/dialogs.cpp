#include "dialogs.h"

#include <QTimer>
#include <array>

#include "show/show.h"

namespace pawnfield {

namespace {

// Until a window manager has put its frame around a dialog and the dialog has painted itself.
constexpr int kSettledMs = 2000;

// Each kind of box, with the longest and the shortest of what is asked.
const std::array<BoxQuestion, 7> kBoxes{{
    {"No hardware was detected so you will be loaded in manual mode.", BoxKind::Plain, BoxAnswer::Ok},
    {"An untrapped error has occured in procedure 'btnStart_Click'. Error 53: File not found", BoxKind::Critical,
     BoxAnswer::Ok},
    {"These questions' files can't be shown:\r\nQuestion 3: missing.jpg: no such file\r\nQuestion 7: clip.mp4: damaged",
     BoxKind::Exclamation, BoxAnswer::Ok},
    {"Are you sure you want to exit?", BoxKind::YesNoCancel, BoxAnswer::No, "Exit", "Stay"},
    {"Would you like to save the changes you made?", BoxKind::YesNoCancel, BoxAnswer::Cancel, "Save", "Don't Save",
     "Go On Editing"},
    {"A file of that name is there already.", BoxKind::YesNo, BoxAnswer::No, kReplace, kSpareFile},
    {"Are you sure?", BoxKind::YesNoCancel, BoxAnswer::Cancel},
}};

}  // namespace

void ShowDialogs(ShowDriver& driver) {
  Dialogs& dialogs = driver.TheShow().platform.dialogs;
  driver.LetBoxesStand(kSettledMs);
  for (const BoxQuestion& question : kBoxes) dialogs.Ask(question, kAppTitle);
  // The others may be the desktop's own, which answer to nothing but keys.
  const auto look = [&driver](const char* name) {
    QTimer::singleShot(kSettledMs, [&driver, name] {
      driver.TakeDisplay(name);
      driver.Type({"Escape"});
    });
  };
  const std::string sets = driver.TheShow().AppPath("\\Trivia Sets");
  look("open-file");
  dialogs.ChooseFile({"Open Game Set", "Game Sets(*.txt)|*.txt|All Files(*.*)|*.*", sets});
  look("save-file");
  dialogs.ChooseFile({"Save Game Set", "Game Sets(*.txt)|*.txt", sets, true, "Friday", "txt"});
  look("font");
  dialogs.ChooseFont({"Segoe UI", 18, true, false});
  look("color");
  dialogs.ChooseColor(0x4DD8FF);
}

}  // namespace pawnfield
