#include "phases.h"

#include <QFile>
#include <QProcess>
#include <QTextStream>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "engine/question_cycle.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "show/phase.h"

namespace pawnfield {

namespace {

constexpr const char* kSet = "Phases";
constexpr QSize kSizes[] = {{1280, 680}, {1366, 768}, {1920, 1080}, {3840, 2160}};

class Phases {
 public:
  explicit Phases(ShowDriver& driver) : driver_(driver), show_(driver.TheShow()), form_(show_.frmMain) {
    media_ = driver_.AppFolder() + "/Trivia Sets/Media/";
    WriteSet();
  }
  bool Worked() const { return worked_; }

  void At(const QSize& size) {
    size_ = size;
    Resize();
    Take("standby");
    Challenge(0);
    Challenge(1);
    Turns(2);
    Turns(3);
    RingIns();
    Winner();
  }

 private:
  void Do(const char* what, bool done) {
    if (!done) QTextStream(stderr) << size_.width() << ": " << what << " did not work\n";
    worked_ = worked_ && done;
  }
  void Press(const char* widget) { Do(widget, driver_.Press(widget)); }
  void Take(const QString& phase) { driver_.TakePictures(QString("%1-%2").arg(size_.width()).arg(phase)); }

  // A question whose picture goes after the set was loaded stands third.
  void WriteSet() {
    const QString font = "T#Segoe UI#28#False#False#16777215#\r\n";
    const QString files = ".\\Media\\";
    QString set = "Which planet has the shortest day?\r\nJupiter\r\n" + font;
    set +=
        "Who, when the lamp in Menlo Park had burned for forty hours and the whole street was to be lit on New "
        "Year's Eve, said that only the rich would burn candles?\r\nThomas Alva Edison\r\n" +
        font;
    set += files + "Soon Gone.jpg\r\nFrance\r\nP\r\n" + files + "Flag 1.jpg\r\nA flag\r\nP\r\n" + files +
           "Tune 1.mp3\r\nA tune\r\nS\r\n";
    for (int i = 0; i < 5; ++i) set += QString("What comes after %1?\r\n%2\r\n%3").arg(i).arg(i + 1).arg(font);
    QFile file(driver_.AppFolder() + "/Trivia Sets/" + kSet + ".txt");
    Do("write the set", file.open(QIODevice::WriteOnly) && file.write(set.toLatin1()) > 0);
  }

  void Resize() {
    ConsoleWindow& console = driver_.Program().Console();
    const QString mode = QString("%1x%2").arg(size_.width()).arg(size_.height() == 680 ? 720 : size_.height());
    // The console goes home from where another monitor is, so its own is as large as it.
    const bool large = size_.width() > 1920;
    const QStringList own{"--output", "DUMMY0", "--mode", large ? mode : "1280x800", "--pos", "0x0"};
    const QStringList rooms{"--output", "DUMMY1", "--mode", mode, "--pos", large ? "3840x0" : "1280x0"};
    Do("the monitors", QProcess::execute("xrandr", own + rooms) == 0);
    driver_.Pause(1000);
    console.showNormal();
    driver_.Pause(200);
    console.resize(size_);
    Do("the console's size", driver_.WaitFor([&] { return console.size() == size_; }, 3000));
    driver_.Pause(500);
    Do("the console's size", console.size() == size_);
  }

  void Choose(int type) {
    Do("idle again", driver_.WaitFor([&] { return form_.optGameType[static_cast<std::size_t>(type)].Enabled.Get(); }));
    Press(QString("optGameType_%1").arg(type).toLatin1().constData());
    Do("grid", driver_.WaitFor([&] { return form_.fraGridControl.Enabled.Get() || type > 1; }, 8000));
  }

  void Challenge(int type) {
    const QString name = QString("type%1-").arg(type + 1);
    Choose(type);
    Take(name + "idle");
    Press("btnStart");
    if (form_.btnPlayMode.Enabled) Press("btnPlayMode");
    Take(name + "claim");
    // The three take turns, and the first one finishes a row.
    const std::pair<int, int> squares[] = {{0, 0}, {3, 0}, {3, 2}, {1, 1}, {4, 1}, {4, 3}};
    for (const auto& [row, column] : squares) {
      Do("claim", driver_.PressSquare(row, column));
      Do("its flash", driver_.WaitFor([&] { return IsPhase(show_, PhaseKind::Claiming); }, 8000));
    }
    Do("last claim", driver_.PressSquare(2, 2));
    driver_.Pause(700);
    Take(name + "flash");
    driver_.Pause(2500);
    End();
  }

  void Load(int type) {
    Choose(type);
    // Without it a verdict has a sound and no picture.
    if (form_.chkAnimation.Value == 0) Press("chkAnimation");
    QFile::copy(media_ + "Flag 2.jpg", media_ + "Soon Gone.jpg");
    Do("choose the set", driver_.Choose("cboList", kSet));
    driver_.Pause(300);
    QFile::remove(media_ + "Soon Gone.jpg");
  }

  // The words of a verdict blink first.
  void Judge(const char* verdict, const QString& name) {
    Press(verdict);
    Do(verdict, driver_.WaitFor([&] { return form_.picCorrect.Visible && !form_.tmrAnimate[0].Enabled; }));
    Take(name);
  }

  void Turns(int type) {
    const QString name = QString("type%1-").arg(type + 1);
    Load(type);
    Take(name + "ready");
    Press("btnStart");
    Take(name + "answer");
    Judge("btnQuestionCorrect", name + "correct");
    Do("board", driver_.WaitFor([&] { return !form_.picCorrect.Visible; }));
    Take(name + "claim");
    Do("claim", driver_.PressSquare(1, 1));
    driver_.Pause(1500);
    Take(name + "pause");
    Do("next", driver_.WaitFor([&] { return form_.picQuestion.Visible.Get(); }));
    Take(name + "long-question");
    End();
  }

  void RingIns() {
    Load(4);
    Do("seconds", driver_.Choose("cboTimedResponse", "3"));
    Press("btnStart");
    Take("type5-question-open");
    Press("btnSelectPlayer_1");
    Take("type5-answer");
    Press("btnCues");
    Take("type5-cues");
    Press("btnCues");
    driver_.Pause(2500);
    Take("type5-time-is-up");
    Judge("btnQuestionIncorrect", "type5-incorrect");
    Do("open again", driver_.WaitFor([&] { return !form_.picCorrect.Visible; }));
    Press("btnStandbyMode");
    Take("type5-covered");
    Press("btnPlayMode");
    for (const char* next : {"type5-long-question", "type5-picture-missing", "type5-picture", "type5-sound"})
      Next(next);
    Press("btnSkipQuestion");
    CheckQuestionsLeft(show_);
    Take("type5-notice");
    Do("notice gone", driver_.WaitFor([&] { return !form_.tmr5QuestionTimer.Enabled; }));
    ShowBonus(show_);
    Take("type5-bonus");
    Do("bonus gone", driver_.WaitFor([&] { return !form_.tmrBonus.Enabled; }));
    form_.tmrAutoContinue.Enabled = false;
    btnContinue_Click(show_);
    Press("btnSelectPlayer_2");
    Judge("btnQuestionCorrect", "type5-correct");
    Do("board", driver_.WaitFor([&] { return !form_.picCorrect.Visible; }));
    Take("type5-claim");
    Do("claim", driver_.PressSquare(2, 2));
    Do("pause", driver_.WaitFor([&] { return IsPhase(show_, PhaseKind::Pause); }));
  }

  void Next(const char* name) {
    if (form_.btnSkipQuestion.Enabled) Press("btnSkipQuestion");
    form_.tmrAutoContinue.Enabled = false;
    btnContinue_Click(show_);
    driver_.Pause(400);
    Take(name);
  }

  void Winner() {
    form_.tmrAutoContinue.Enabled = false;
    SetScore(show_, 1, "450");
    SetScore(show_, 2, "1200");
    SetScore(show_, 3, "-50");
    Press("btnEndGame");
    driver_.Pause(1500);
    Take("winner");
    Do("standby", driver_.WaitFor([&] { return form_.picStandby.Visible.Get(); }));
    Take("last-result");
  }

  void End() {
    form_.tmrAutoContinue.Enabled = false;
    if (form_.btnEndGame.Enabled) {
      Press("btnEndGame");
    } else if (form_.btnReset.Enabled) {
      Press("btnReset");
    }
    Do("idle", driver_.WaitFor([&] { return form_.picStandby.Visible.Get(); }, 15000));
    driver_.Pause(300);
  }

  ShowDriver& driver_;
  Show& show_;
  MainForm& form_;
  QString media_;
  QSize size_;
  bool worked_ = true;
};

}  // namespace

bool ShowPhases(ShowDriver& driver) {
  Phases phases(driver);
  for (const QSize& size : kSizes) phases.At(size);
  return phases.Worked();
}

}  // namespace pawnfield
