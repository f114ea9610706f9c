#include "forms/fs_main_form.h"

#include "data/house_colors.h"
#include "forms/form_layout.h"

namespace pawnfield {

namespace {
constexpr double kWidth = 15360;
constexpr double kHeight = 11520;
// Names and scores stand in one row of cards below the board.
constexpr double kCardsTop = 9960;
constexpr double kCardHeight = 1460;
constexpr double kCardGap = 120;
constexpr double kPlayerWidth = (kWidth - 4 * kCardGap) / 3;
// The band under a question is no higher than 9 hundredths of the screen. The clock stands at its right, and as much
// room is left at its left, so that the cards stand in the middle.
constexpr double kBandHeight = 1030;
constexpr double kBandSide = 1560;
constexpr double kBandGap = 60;
constexpr double kBandCardWidth = (kWidth - 2 * kBandSide - 2 * kBandGap) / 3;
constexpr double kBandNameLeft = 620;
constexpr double kBandScoreWidth = 1460;

// Where the first card of a row of so many stands.
double FirstLeft(int players, double width, double gap) { return (kWidth - players * width - (players - 1) * gap) / 2; }
// The sign of the player's pieces stands before the name.
constexpr double kNameMargin = 780;
constexpr double kNameShare = 0.63;
}  // namespace

FSMainForm::FSMainForm() : Form("frmFSMain") {
  Form::Caption = "Pawnfield";
  Width = kWidth;
  Height = kHeight;
  imgBackground.MoveTo(0, 0, kWidth, kHeight);
  imgHeader.MoveTo(2160, 150, 11040, 1200);
  imgDJEntry.Visible = false;
  txtOptionalHeading.MoveTo(2160, 150, 11040, 1200);
  txtOptionalHeading.Visible = false;
  lblDJCommand.MoveTo(240, 1440, 1680, 900);
  lblDJCommand.Font = {"Segoe UI", 36, true, false};
  for (std::size_t i = 0; i < 3; ++i) {
    lblPlayer[i].ForeColor = kPlayerColors[static_cast<int>(i) + 1];
    lblPlayer[i].Font = {"Segoe UI", 21, true, false};
    Label11[i].Font = {"Segoe UI", 36, true, false};
    lblPlayer[i].Caption = "PLAYER " + std::to_string(i + 1);
    Label11[i].Caption = "0";
    lblBandName[i].ForeColor = lblPlayer[i].ForeColor;
    lblBandName[i].Font = {"Segoe UI", 22, true, false};
    lblBandScore[i].Font = {"Segoe UI", 26, true, false};
    for (Control* part : {static_cast<Control*>(&picBandPlayer[i]), static_cast<Control*>(&lblBandName[i]),
                          static_cast<Control*>(&lblBandScore[i])}) {
      part->Container = &picBand;
    }
  }
  picBand.BackColor = kDeepGround;
  PlacePlayers(kPlayers);
  for (std::size_t i = 0; i < 5; ++i) {
    lblQuestion[i].Container = &picQuestion;
    lblQuestion[i].Font = {"Courier New", 28, true, true};
    lblQuestion[i].Visible = i == 0;
  }
  imgQuestionBackground.Container = &picQuestion;
  picImageResize[0].Container = &picQuestionPicture;
  lblPlayerName.Container = &picHideQuestion;
  lblWhatIsAnswer.Container = &picHideQuestion;
  imgCorrect.Container = &picCorrect;
  lblRightWrong.Container = &picCorrect;
  lblWinner.Container = &picWinner;
  imgBonus.Container = &picBonus;
  imgSound.Container = &picSound;
  imgStandby.Container = &picStandby;
  picMODVideo.Container = &picMOD;
  MediaPlayer1.Container = &picMODVideo;
  picImageResize[1].Container = &picMOD;
  lblPlayerName.Font = {"Segoe UI", 72, true, false};
  lblPlayerName.Height = 2400;
  lblWhatIsAnswer.Font = {"Segoe UI", 48, false, false};
  lblWhatIsAnswer.Caption = "What is your answer?";
  lblWhatIsAnswer.Height = 1500;
  lblRightWrong.Font = {"Segoe UI", 120, true, false};
  lblRightWrong.Height = 3600;
  lblAnswerClock.Container = &picBand;
  lblAnswerClock.MoveTo(kWidth - kBandSide, 0, kBandSide, kBandHeight);
  lblAnswerClock.Font = {"Segoe UI", 36, true, false};
  lblAnswerClock.Visible = false;
  lblWinner.Font = {"Segoe UI", 72, true, false};
  // The sound comes once, from the console's player.
  MediaPlayer1.uiMode = std::string("none");
  MediaPlayer1.stretchToFit = true;
  MediaPlayer1.Volume = 0;
  tmrAnimate[0].Interval = 200;
  for (PictureBox* panel : {&picQuestion, &picQuestionPicture, &picHideQuestion, &picCorrect, &picWinner, &picBonus,
                            &picMOD, &picMODVideo, &picSound, &picBand}) {
    panel->Visible = false;
  }
  PlaceTestPicture();
  OnResize = [this] { Form_Resize(); };
  Form_Resize();
}

void FSMainForm::PlaceTestPicture() {
  constexpr double kMargin = 580;
  const struct {
    Label& label;
    double top, height, size;
    bool bold;
  } lines[] = {{lblTestName, 2900, 1700, 66, true},
               {lblTestSize, 4600, 1000, 36, false},
               {lblTestLine, 6300, 900, 24, false},
               {lblTestHow, 7700, 900, 24, false}};
  picTest.MoveTo(0, 0, kWidth, kHeight);
  picTest.Visible = false;
  for (const auto& [label, top, height, size, bold] : lines) {
    label.Container = &picTest;
    label.MoveTo(kMargin, top, kWidth - 2 * kMargin, height);
    label.Font = {"Segoe UI", size, bold, false};
  }
  lblTestHow.Caption = "All four edges and corners are to be seen.";
}

PictureBox& FSMainForm::ScoreBox(int player) {
  return *PerPlayer<PictureBox*>(&picPlayer1Score, &picPlayer2Score, &picPlayer3Score)[player];
}

void FSMainForm::PlacePlayers(int players) {
  for (std::size_t i = 0; i < 3; ++i) {
    const auto place = static_cast<double>(i);
    const double left = FirstLeft(players, kPlayerWidth, kCardGap) + place * (kPlayerWidth + kCardGap);
    const double scoreLeft = left + kPlayerWidth * kNameShare;
    picPlayer[i].MoveTo(left, kCardsTop, kPlayerWidth, kCardHeight);
    lblPlayer[i].MoveTo(left + kNameMargin, kCardsTop, kPlayerWidth * kNameShare - kNameMargin, kCardHeight);
    for (Control* part :
         {static_cast<Control*>(&ScoreBox(static_cast<int>(i) + 1)), static_cast<Control*>(&Label11[i])}) {
      part->MoveTo(scoreLeft, kCardsTop, kPlayerWidth * (0.98 - kNameShare), kCardHeight);
    }
    const double bandLeft = FirstLeft(players, kBandCardWidth, kBandGap) + place * (kBandCardWidth + kBandGap);
    picBandPlayer[i].MoveTo(bandLeft, 0, kBandCardWidth, kBandHeight);
    lblBandName[i].MoveTo(bandLeft + kBandNameLeft, 0, kBandCardWidth - kBandNameLeft - kBandScoreWidth, kBandHeight);
    lblBandScore[i].MoveTo(bandLeft + kBandCardWidth - kBandScoreWidth, 0, kBandScoreWidth - 180, kBandHeight);
  }
}

void FSMainForm::SetBand(bool up) {
  picBand.Visible = up;
  const double height = Height - (up ? kBandHeight : 0);
  if (picMOD.Height == height) return;
  picMOD.Height = height;
  picMODVideo.Height = height;
  MediaPlayer1.Height = height;
}

void FSMainForm::Form_Resize() {
  const double overBand = Height - kBandHeight;
  picStandby.MoveTo(0, 0, Width, Height);
  for (PictureBox* panel : {&picQuestionPicture, &picQuestion, &picHideQuestion, &picSound}) {
    panel->MoveTo(0, 0, Width, overBand);
  }
  // The band lies over the lower edge of a verdict's picture, whose words stand in its middle.
  for (PictureBox* panel : {&picCorrect, &picWinner, &picBonus, &picMOD, &picMODVideo})
    MoveLike(*panel, picStandby, Extent::Copy);
  for (PictureBox* panel : {&picQuestionPicture, &picQuestion, &picHideQuestion, &picCorrect, &picWinner, &picBonus,
                            &picSound, &picStandby, &picMOD, &picBand, &picTest}) {
    panel->BringToFront();
  }
  picBand.MoveTo(0, overBand, Width, kBandHeight);
  SetBand(picBand.Visible);
  MediaPlayer1.MoveTo(0, 0, picMODVideo.Width, picMODVideo.Height);
  for (Image* fill : {&imgQuestionBackground, &imgCorrect, &imgBonus, &imgSound, &imgStandby}) {
    fill->MoveTo(0, 0, Width, fill->Container->Height);
  }
  lblRightWrong.MoveTo(0, (picCorrect.Height - lblRightWrong.Height) / 2, Width, lblRightWrong.Height);
  const double block = lblPlayerName.Height + lblWhatIsAnswer.Height;
  lblPlayerName.MoveTo(0, (picHideQuestion.Height - block) / 2, Width, lblPlayerName.Height);
  lblWhatIsAnswer.MoveTo(0, lblPlayerName.Top + lblPlayerName.Height, Width, lblWhatIsAnswer.Height);
}

}  // namespace pawnfield
