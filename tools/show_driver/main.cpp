// Plays two short games in the real program on the present display and saves pictures of both screens at each phase.
// Usage: pawnfield_show [FOLDER [forms|dialogs|gallery|phases|media|newcomer|sheet|letters|record|winner]]; with
// "forms" it opens every form instead and saves a picture of each, with "dialogs" boxes and dialogs with their frames,
// with "gallery" it brings up everything that the two screens can show, with "phases" it plays a game of each type at
// each size of the console, with "media" headers, a picture and a film on demand, with "newcomer" the manual's
// newcomer's hour, with "sheet" questions that come from a spreadsheet, with "letters" a show in Hebrew and Greek with
// its prints, with "record" a game's results and the question about an interrupted show, with "winner" films of the
// ends of games.

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/files/native_path.h"
#include "desktop/windows/fitting_scale.h"
#include "desktop/windows/form_window.h"
#include "dialogs.h"
#include "editor_driver.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/results_form.h"
#include "gallery.h"
#include "letters.h"
#include "media/media_on_demand.h"
#include "newcomer.h"
#include "phases.h"
#include "presentation/both_screens.h"
#include "record/come_back.h"
#include "record/record_lines.h"
#include "record/ring_in_order.h"
#include "show/show_record.h"
#include "show_driver.h"
#include "winner_films.h"

namespace pawnfield {
namespace {

// Counts what did not go as it should, and says so at once.
class Script {
 public:
  explicit Script(ShowDriver& driver) : driver_(driver) {}
  void Do(const QString& what, bool done) {
    if (done) return;
    ++failures_;
    QTextStream(stderr) << "did not work: " << what << '\n';
  }
  void Press(const QString& widget) { Do("press " + widget, driver_.Press(widget)); }
  int Failures() const { return failures_; }

 private:
  ShowDriver& driver_;
  int failures_ = 0;
};

void PlayTrivia(ShowDriver& driver, Script& script) {
  MainForm& form = driver.TheShow().frmMain;
  script.Press("optGameType_2");
  script.Do("choose a set", driver.Choose("cboList", "General Knowledge 1"));
  driver.TakePictures("set-loaded");
  script.Press("btnStart");
  driver.TakePictures("question");
  script.Press("btnQuestionCorrect");
  driver.TakePictures("correct");
  script.Do("board after the verdict", driver.WaitFor([&] { return !form.picCorrect.Visible; }));
  script.Do("claim a square", driver.PressSquare(1, 1));
  driver.TakePictures("square-turning");
  driver.Pause(1500);
  driver.TakePictures("square-claimed");
  script.Do("continue",
            driver.WaitFor([&] { return form.btnContinue.Enabled.Get() || form.picQuestion.Visible.Get(); }));
  if (form.btnContinue.Enabled) script.Press("btnContinue");
  script.Do("second question", driver.WaitFor([&] { return form.picQuestion.Visible.Get(); }));
  script.Press("btnQuestionIncorrect");
  driver.TakePictures("incorrect");
  driver.Pause(5000);
  driver.TakePictures("after-incorrect");
  script.Press("btnStandbyMode");
  driver.TakePictures("standby");
  script.Press("btnPlayMode");
  script.Press("btnEndGame");
  driver.TakePictures("winner");
  driver.Pause(6000);
  driver.TakePictures("after-winner");
}

// The editor's forms in each kind of question, and the set that comes of it with a medium taken away.
void WriteSet(ShowDriver& driver, Script& script) {
  EditorDriver editor(driver);
  const QString media = driver.AppFolder() + "/Trivia Sets/Media/";
  QFile::copy(media + "Flag 1.jpg", media + "Gone.jpg");
  editor.WhenShown("frmEditChoice", [&] { editor.TakePicture("frmEditChoice", "edit-choice"); });
  const auto work = [&] {
    editor.TakePicture("frmEditor", "editor-empty");
    script.Do("write a text", editor.Write("Which planet has the shortest day?", "Jupiter (just under 10 hours)"));
    editor.TakePicture("frmEditor", "editor-text");
    script.Do("next", editor.Press("btnNext"));
    editor.TakePicture("frmEditor", "editor-new-question");
    script.Do("write a picture", editor.Write("", "France", "btnPicture", media + "Gone.jpg"));
    editor.TakePicture("frmEditor", "editor-picture");
    script.Do("next", editor.Press("btnNext"));
    script.Do("write a sound", editor.Write("", "A tune", "btnSound", media + "Tune 1.mp3"));
    editor.TakePicture("frmEditor", "editor-sound");
    script.Do("next", editor.Press("btnNext"));
    script.Do("write a long text", editor.Write(QString("A long question with many words ").repeated(9), "Yes"));
    editor.TakePicture("frmEditor", "editor-long-text");
    script.Do("save", editor.PressAndChoose("frmEditor", "btnSave", driver.AppFolder() + "/Trivia Sets/Written.txt"));
  };
  script.Do("edit", editor.WithNewSet(work));
  QFile::remove(media + "Gone.jpg");
  editor.WhenShown("frmDialog2", [&] {
    editor.TakePicture("frmDialog2", "missing-media");
    script.Do("repair", editor.PressAndChoose("frmDialog2", "btnRepair", media + "Flag 2.jpg"));
    editor.TakePicture("frmDialog2", "missing-media-repaired");
    script.Do("finish", editor.Press("frmDialog2", "btnFinished"));
  });
  script.Press("optGameType_2");
  script.Do("choose the written set", driver.Choose("cboList", "Written"));
}

void PlayChallenge(ShowDriver& driver, Script& script) {
  script.Press("optGameType_0");
  driver.TakePictures("challenge-ready");
  script.Press("btnStart");
  if (driver.TheShow().frmMain.btnPlayMode.Enabled) script.Press("btnPlayMode");
  for (int i = 0; i < 3; ++i) {
    script.Do("claim on the console", driver.PressSquare(i, i));
    driver.Pause(2500);
  }
  script.Do("claim on the audience screen", driver.PressAudienceSquare(4, 0));
  driver.Pause(2500);
  driver.TakePictures("challenge-board");
  script.Do("type half a square", driver.Type({"c"}));
  driver.TakePictures("square-half-typed");
}

void ShowMedia(ShowDriver& driver, Script& script, const QString& folder) {
  Show& show = driver.TheShow();
  MainForm& form = show.frmMain;
  form.picStandby.Visible = false;
  show.frmFSMain.picStandby.Visible = false;
  show.state.OptionalHeaders[0] = {"Welcome to the Friday Quiz", "Comic Sans MS", 18, true, false, "65535", "5242880"};
  show.state.OptionalHeaders[1] = {
      "Tonight's prizes are given by the Corner Bakery", "Segoe UI", 16, false, true, "16777215", "4210688"};
  show.state.OptionalHeaderCount = 2;
  show.state.OptionalHeadersOn = true;
  for (const char* name : {"header-one", "header-two"}) {
    form.tmrOptionalHeaders.Fire();
    driver.TakePictures(name);
  }
  const auto make = [&](const QString& picture, const QString& file) {
    script.Do("make " + file, QProcess::execute("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i", picture,
                                                           "-frames:v", "1", folder + '/' + file}) == 0);
    return SpelledPath(QFileInfo(folder + '/' + file).absoluteFilePath());
  };
  show.soundBanks[1][9] = show.AppPath("\\Question Backgrounds\\7.jpg");
  show.soundBanks[1][11] = make("testsrc2=size=500x900", "tall.jpg");
  show.soundBanks[1][12] = make("smptehdbars=size=320x240", "small.bmp");
  for (const int key : {9, 11, 12}) {
    PlayKeyMedia(show, key);
    driver.TakePictures("picture-on-demand");
  }
  script.Do("the picture goes", driver.WaitFor([&] { return !form.picMOD.Visible; }, 8000));
  const QString film = folder + "/film.mp4";
  script.Do("make a film", QProcess::execute("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i",
                                                        "testsrc2=size=960x540:rate=25:duration=8", "-f", "lavfi", "-i",
                                                        "sine=duration=8", film}) == 0);
  show.soundBanks[1][10] = SpelledPath(QFileInfo(film).absoluteFilePath());
  PlayKeyMedia(show, 10);
  script.Do("the film runs", driver.WaitFor([&] { return form.MediaPlayer1.PlayState == 3; }));
  driver.Pause(1500);
  driver.TakePictures("film-on-demand");
  script.Do("the film ends", driver.WaitFor([&] { return !form.picMOD.Visible; }, 15000));
  driver.TakePictures("after-the-film");
}

// A sheet is looked at and taken, and the list of all questions works on it.
void ImportSheet(ShowDriver& driver, Script& script, const QString& folder) {
  EditorDriver editor(driver);
  QFile sheet(folder + "/Friday.csv");
  script.Do("make a sheet", sheet.open(QIODevice::WriteOnly));
  sheet.write("Question,Answer,Points\n");
  for (int i = 1; i <= 12; ++i) {
    sheet.write(QString("\"What is %1 times \"\"%2\"\"?\",%3,5\n").arg(i).arg(i + 1).arg(i * (i + 1)).toUtf8());
  }
  sheet.write("Flag 1.jpg,France,10\n,\"An answer, but no question\",5\n");
  sheet.write(QString("\u03A0\u03BF\u03B9\u03B1 \u03B5\u03AF\u03BD\u03B1\u03B9 \u03B7 \u03C0\u03CC\u03BB\u03B7;,"
                      "\u0391\u03B8\u03AE\u03BD\u03B1,5\n\u05DE\u05D4 \u05D4\u05D1\u05D9\u05E8\u05D4?,"
                      "\u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD,5\n")
                  .toUtf8());
  sheet.write("Who wrote the fisrt \"\"novell\"\"?,,5\n" + QByteArray(300, 'q') + ",Too long,5\n");
  sheet.close();
  QFile::copy(driver.AppFolder() + "/Trivia Sets/Media/Flag 1.jpg", folder + "/Flag 1.jpg");
  editor.WhenShown("frmImport", [&] {
    editor.TakePicture("frmImport", "import");
    script.Do("take the sheet", editor.Press("frmImport", "btnTake"));
  });
  const auto work = [&] {
    script.Do("import", editor.ChooseEntry("mnuImport", QFileInfo(sheet).absoluteFilePath()));
    driver.Pause(300);
    editor.TakePicture("frmEditor", "editor-list");
    script.Do("find", editor.Type("txtFind", "novell"));
    script.Do("check spelling", editor.Press("chkSpellChecker"));
    editor.TakePicture("frmEditor", "editor-spelling");
    auto* list = editor.Window("frmEditor")->findChild<QTreeWidget*>("lstQuestions");
    list->setCurrentItem(list->topLevelItem(14));
    driver.Pause(200);
    editor.TakePicture("frmEditor", "editor-hebrew");
    script.Do("save", editor.PressAndChoose("frmEditor", "btnSave", driver.AppFolder() + "/Trivia Sets/Friday.txt"));
    QTimer::singleShot(1200, [&] {
      if (QWidget* dialog = QApplication::activeModalWidget()) driver.TakePicture(*dialog, "pack-set");
    });
    script.Do("pack", editor.ChooseEntry("mnuPackSet", QFileInfo(folder).absoluteFilePath() + "/Friday.pawnset"));
  };
  script.Do("edit", editor.WithNewSet(work));
}

// Every form that the console opens, once.
void ShowForms(ShowDriver& driver, Script& script) {
  MainForm& form = driver.TheShow().frmMain;
  const auto picture = [&](const char* name, Control& opener) {
    script.Do(name, driver.PictureOfForm(name, [&] { opener.Click(); }));
  };
  picture("frmPlayerNames", form.mnuFileAddPlayerNames);
  picture("frmSoundEffects", form.btnSounds);
  picture("frmOptionalHeaders", form.mnuFileOptionalHeaders);
  picture("frmGameTypeHelp", form.btnGameTypeHelp);
  picture("frmHelpAbout", form.mnuHelpAbout);
  picture("frmConfigKeys", form.btnEditKeyboardCtrl);
  picture("frmConnectToProjector", form.mnuHelpProjector);
  picture("frmSoundEffects", form.btnSounds);
  picture("frmOptionalHeaders", form.mnuFileOptionalHeaders);
  for (const int tab : {0, 1}) {
    driver.Form("frmOptions")->findChild<QTabWidget*>("SSTab1")->setCurrentIndex(tab);
    picture("frmOptions", form.mnuFileOptions);
  }
  picture("frmMapMF", form.mnuMapMF);
  picture("frmShowCheck", form.mnuFileShowCheck);
  picture("frmSetInterface", form.mnuFileInterface);
}

// A few questions with presses of remotes, their results, and the question about a show that was interrupted.
void ShowRecordOfAGame(ShowDriver& driver, Script& script, const QString& folder) {
  Show& show = driver.TheShow();
  MainForm& form = show.frmMain;
  script.Press("optGameType_4");
  script.Do("choose a set", driver.Choose("cboList", "General Knowledge 1"));
  for (const auto& [player, name] : {std::pair{1, "ANNA"}, {2, "BEN"}, {3, "CHLOE"}}) SetPlayerName(show, player, name);
  script.Press("btnStart");
  for (int question = 0; question < 6; ++question) {
    script.Do("question", driver.WaitFor([&] { return form.picQuestion.Visible.Get(); }));
    driver.Pause(300 + 170 * question);
    const std::int64_t now = show.platform.clock.NowUs();
    const int first = 1 + question % 3, second = 1 + (question + 1) % 3;
    AddPress(show, PressOf(show, first, PressWay::Remote, now));
    script.Press(QString("btnSelectPlayer_%1").arg(first - 1));
    AddPress(show, PressOf(show, second, PressWay::Remote, now + 3000 + 97000 * (question % 4)));
    if (question == 4) {
      script.Press("btnQuestionIncorrect");
      script.Press(QString("btnSelectPlayer_%1").arg(second - 1));
    }
    script.Press("btnQuestionCorrect");
    script.Do("board after the verdict", driver.WaitFor([&] { return !form.picCorrect.Visible; }));
    script.Do("claim a square", driver.PressSquare(question % 5, (question * 2) % 5));
    driver.Pause(1500);
    if (form.btnContinue.Enabled) script.Press("btnContinue");
  }
  driver.Pause(200);
  show.platform.records.Flush();
  form.mnuFileResults.Click();
  driver.Pause(500);
  driver.TakePicture(*driver.Form("frmResults"), "frmResults");
  show.frmResults.btnClose.Click();
  auto record = ParseRecord(show.platform.records.Read(show.record->File));
  script.Do("read the record", record.has_value());
  if (!record) return;
  show.record->Interrupted = InterruptedShow{show.record->File, std::move(*record)};
  // Before the driver answers it.
  QTimer::singleShot(0, [&folder] {
    if (QWidget* box = QApplication::activeModalWidget()) box->grab().save(folder + "/99-interrupted.png");
  });
  AskForInterruptedShow(show);
}

}  // namespace
}  // namespace pawnfield

int main(int argc, char** argv) {
  pawnfield::FitScaleToMonitor(argc, argv);
  QApplication application(argc, argv);
  pawnfield::PrepareApplication();
  const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("show");
  pawnfield::ShowDriver driver(folder);
  pawnfield::Script script(driver);
  script.Do("start", driver.Start());
  driver.TakePictures("console");
  const QString what = argc > 2 ? argv[2] : "";
  if (what == "forms") {
    pawnfield::ShowForms(driver, script);
  } else if (what == "dialogs") {
    pawnfield::ShowDialogs(driver);
  } else if (what == "gallery") {
    script.Do("gallery", pawnfield::ShowGallery(driver));
  } else if (what == "phases") {
    script.Do("phases", pawnfield::ShowPhases(driver));
  } else if (what == "record") {
    pawnfield::ShowRecordOfAGame(driver, script, folder);
  } else if (what == "media") {
    pawnfield::ShowMedia(driver, script, folder);
  } else if (what == "newcomer") {
    script.Do("newcomer's hour", pawnfield::PlayNewcomersHour(driver, folder));
  } else if (what == "letters") {
    script.Do("letters", pawnfield::ShowLetters(driver, folder));
  } else if (what == "winner") {
    script.Do("winner", pawnfield::FilmWinners(driver, folder));
  } else if (what == "sheet") {
    pawnfield::ImportSheet(driver, script, folder);
  } else {
    pawnfield::WriteSet(driver, script);
    pawnfield::PlayTrivia(driver, script);
    pawnfield::PlayChallenge(driver, script);
  }
  for (const QString& text : driver.BoxTexts()) QTextStream(stdout) << "box: " << text << '\n';
  return script.Failures() == 0 ? 0 : 1;
}
