#include "gallery.h"

#include <QTextStream>

#include "desktop/windows/audience_window.h"
#include "engine/question_cycle.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "show/settings.h"

namespace pawnfield {

namespace {

constexpr const char* kSet = "Gallery";
constexpr const char* kLongNames[] = {"THE MAGNIFICENT SEVENTH GRADERS", "ANNE-MARIE FROM ST. PETERSBURG",
                                      "WILHELMINA"};

std::string LongQuestion() {
  std::string text =
      "Which of these inventors, who never finished school and sold newspapers on a railway train, held ";
  text += "more than a thousand patents, lit up a whole street in Menlo Park on New Year's Eve, and is remembered ";
  text += "above all for a lamp that burned";
  while (text.size() < 255) text += " on";
  return text.substr(0, 255) + "?";
}

void WriteSet(Show& show) {
  const std::string media = show.AppPath("\\Trivia Sets\\Media\\");
  const auto pictures = show.platform.files.List(media.substr(0, media.size() - 1), ".jpg");
  const auto sounds = show.platform.files.List(media.substr(0, media.size() - 1), ".wav");
  const std::string font = "T#Courier New#28#True#True#16777215#\r\n";
  std::string bytes = "How many pieces stand on the chess board when a game begins?\r\nThirty-two\r\n" + font;
  bytes += LongQuestion() + "\r\nThomas Alva Edison, the wizard of Menlo Park\r\n" + font;
  if (!pictures.empty()) bytes += media + pictures[0] + "\r\nA picture\r\nP\r\n";
  if (!sounds.empty()) bytes += media + sounds[0] + "\r\nA melody\r\nS\r\n";
  for (int i = 0; i < 5; ++i) bytes += "What comes after " + std::to_string(i) + "?\r\nThe next\r\n" + font;
  show.platform.files.Write(show.AppPath("\\Trivia Sets\\") + kSet + ".txt", bytes);
}

class Gallery {
 public:
  explicit Gallery(ShowDriver& driver) : driver_(driver), show_(driver.TheShow()), form_(show_.frmMain) {}
  bool Worked() const { return worked_; }

  void Boards() {
    Do(driver_.Press("optGameType_0"));
    Do(driver_.Press("optPlayers_1"));
    for (int grid = 3; grid <= 5; ++grid) {
      // The grid is offered again by a slow timer.
      Do(driver_.WaitFor([&] { return form_.fraGridControl.Enabled.Get(); }));
      Do(driver_.Press(QString("optGridControl_%1").arg(grid - 3)));
      Do(driver_.Press("btnPlayMode"));
      driver_.TakePictures(QString("board-%1-empty").arg(grid));
      for (int r = 0; r < grid; ++r) {
        for (int c = 0; c < grid; ++c) SetSquarePicture(show_, r, c, form_.FaceA(1 + (r * 2 + c) % 3).Picture);
      }
      LightScoreBox(show_, 1 + grid % 3);
      driver_.TakePictures(QString("board-%1-full").arg(grid));
      if (grid == 5) driver_.TakePicturesAsSeen("eyes-board");
      Do(driver_.Press("btnStandbyMode"));
    }
  }

  void Questions() {
    Do(driver_.Press("optGameType_4"));
    Do(driver_.Choose("cboList", kSet));
    show_.state.HideQuestion = true;
    show_.state.Animation = true;
    Do(driver_.Choose("cboTimedResponse", "10"));
    Do(driver_.Press("btnStart"));
    driver_.TakePictures("question-text");
    driver_.TakePicturesAsSeen("eyes-question");
    ReportLetters("a question of 60 characters", show_.frmFSMain.lblQuestion[0]);
    Do(driver_.Press("btnSelectPlayer_1"));
    driver_.TakePictures("cover");
    ReportLetters("a name in the band", show_.frmFSMain.lblBandName[0]);
    ReportLetters("a score in the band", show_.frmFSMain.lblBandScore[0]);
    ReportLetters("the seconds to answer", show_.frmFSMain.lblAnswerClock);
    Do(driver_.Press("btnQuestionIncorrect"));
    Verdict("verdict-incorrect");
    Next();
    driver_.TakePictures("question-256-characters");
    ReportLetters("a question of 256 characters", show_.frmFSMain.lblQuestion[0]);
    Do(driver_.Press("btnSelectPlayer_0"));
    Do(driver_.Press("btnQuestionCorrect"));
    Verdict("verdict-correct");
    Next();
    driver_.TakePictures("question-picture");
    Next();
    driver_.TakePictures("question-sound");
    Do(driver_.Press("btnSkipQuestion"));
    CheckQuestionsLeft(show_);
    driver_.TakePictures("five-left");
    Do(driver_.WaitFor([&] { return !form_.tmr5QuestionTimer.Enabled; }));
    ShowBonus(show_);
    driver_.TakePictures("bonus");
    Do(driver_.WaitFor([&] { return !form_.tmrBonus.Enabled; }));
  }

  void Winners() {
    form_.tmrAutoContinue.Enabled = false;
    for (const Panel panel : {Panel::Question, Panel::Standby}) HidePanel(show_, panel);
    ReportLetters("PLAYER 1", show_.frmFSMain.lblPlayer[0]);
    for (int tied = 1; tied <= 3; ++tied) {
      for (int player = 1; player <= 3; ++player) SetScore(show_, player, player <= tied ? "450" : "50");
      Winner(QString("winner-%1").arg(tied));
    }
    for (int player = 1; player <= 3; ++player) {
      SetPlayerName(show_, player, kLongNames[player - 1]);
      SetScore(show_, player, "-999999");
    }
    driver_.TakePictures("long-names-and-scores");
    ReportLetters("the longest name", show_.frmFSMain.lblPlayer[0]);
    ReportLetters("the longest score", show_.frmFSMain.Label11[0]);
    for (int player = 1; player <= 3; ++player) SetScore(show_, player, "450");
    Winner("winner-3-long-names");
    tmrWinner_Timer(show_);
    driver_.TakePictures("last-result");
    driver_.TakePicturesAsSeen("eyes-last-result");
  }

  void TwoPlayers() {
    Do(driver_.Press("optGameType_0"));
    Do(driver_.Press("optPlayers_0"));
    Do(driver_.Press("btnPlayMode"));
    LightScoreBox(show_, 1);
    show_.state.OptionalHeaders[0] = {
        "Tonight's prizes are given by the Corner Bakery", "", 18, true, false, "16777215", "4210688"};
    show_.state.OptionalHeaderCount = 1;
    show_.state.OptionalHeadersOn = true;
    form_.tmrOptionalHeaders.Fire();
    driver_.TakePictures("two-players-and-a-header");
    ReportLetters("a long header", show_.frmFSMain.txtOptionalHeading);
  }

 private:
  void Do(bool done) { worked_ = worked_ && done; }

  void ReportLetters(const QString& what, const Control& label) {
    const double height = driver_.Program().Audience().Screen().LetterHeight(label);
    QTextStream(stdout) << "capitals of " << what << ": 1/" << show_.frmFSMain.Height / height << " of the picture\n";
  }

  // Without its blinking.
  void Verdict(const QString& name) {
    form_.tmrAnimate[0].Enabled = false;
    form_.lblRightWrong.Visible = true;
    show_.frmFSMain.lblRightWrong.Visible = true;
    driver_.TakePictures(name);
    driver_.TakePicturesAsSeen("eyes-" + name);
  }

  void Next() {
    Do(driver_.WaitFor([&] { return !form_.picCorrect.Visible; }));
    if (form_.btnSkipQuestion.Enabled) Do(driver_.Press("btnSkipQuestion"));
    form_.tmrAutoContinue.Enabled = false;
    btnContinue_Click(show_);
    driver_.Pause(200);
  }

  void Winner(const QString& name) {
    HidePanel(show_, Panel::Standby);
    GameOver(show_);
    form_.tmrWinner.Enabled = false;
    form_.tmrAnimate[1].Enabled = false;
    form_.lblWinner.Visible = true;
    driver_.Pause(1500);
    driver_.TakePictures(name);
    if (name == "winner-1" || name == "winner-3") driver_.TakePicturesAsSeen("eyes-" + name);
    ReportLetters("the final name", show_.frmFSMain.Winner.lblFinalName[0]);
    HidePanel(show_, Panel::Winner);
  }

  ShowDriver& driver_;
  Show& show_;
  MainForm& form_;
  bool worked_ = true;
};

}  // namespace

bool ShowGallery(ShowDriver& driver) {
  WriteSet(driver.TheShow());
  Gallery gallery(driver);
  gallery.Boards();
  gallery.Questions();
  gallery.Winners();
  gallery.TwoPlayers();
  return gallery.Worked();
}

}  // namespace pawnfield
