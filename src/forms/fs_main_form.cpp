#include "forms/fs_main_form.h"

#include <array>

#include "forms/form_layout.h"
#include "forms/player_colors.h"

namespace pawnfield {

namespace {
constexpr double kWidth = 15360;
constexpr double kHeight = 11520;
// Names and scores stand in one band below the board.
constexpr double kBandTop = 9960;
constexpr double kBandHeight = 1460;
constexpr double kBandGap = 120;
constexpr double kPlayerWidth = (kWidth - 4 * kBandGap) / 3;
constexpr double kNameMargin = 150;
constexpr double kNameShare = 0.56;
constexpr double kClockWidth = 1500;
constexpr double kClockHeight = 1036;
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
    const double left = kBandGap + static_cast<double>(i) * (kPlayerWidth + kBandGap);
    PictureBox& scoreBox = ScoreBox(static_cast<int>(i) + 1);
    picPlayer[i].MoveTo(left, kBandTop, kPlayerWidth, kBandHeight);
    scoreBox.MoveTo(left + kPlayerWidth * kNameShare, kBandTop, kPlayerWidth * (0.98 - kNameShare), kBandHeight);
    lblPlayer[i].MoveTo(left + kNameMargin, kBandTop, kPlayerWidth * kNameShare - kNameMargin, kBandHeight);
    lblPlayer[i].ForeColor = kPlayerColors[static_cast<int>(i) + 1];
    lblPlayer[i].Font = {"Segoe UI", 23, true, false};
    Label11[i].MoveTo(left + kPlayerWidth * kNameShare, kBandTop, kPlayerWidth * (0.98 - kNameShare), kBandHeight);
    Label11[i].Font = {"Segoe UI", 40, true, false};
    lblPlayer[i].Caption = "PLAYER " + std::to_string(i + 1);
    Label11[i].Caption = "0";
  }
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
  lblAnswerClock.MoveTo(kWidth - kClockWidth, kHeight - kClockHeight, kClockWidth, kClockHeight);
  lblAnswerClock.Font = {"Segoe UI", 48, true, false};
  lblAnswerClock.Visible = false;
  lblWinner.Font = {"Segoe UI", 72, true, false};
  // The sound comes once, from the console's player.
  MediaPlayer1.uiMode = std::string("none");
  MediaPlayer1.stretchToFit = true;
  MediaPlayer1.Volume = 0;
  tmrAnimate[0].Interval = 200;
  for (PictureBox* panel : {&picQuestion, &picQuestionPicture, &picHideQuestion, &picCorrect, &picWinner, &picBonus,
                            &picMOD, &picMODVideo, &picSound}) {
    panel->Visible = false;
  }
  OnResize = [this] { Form_Resize(); };
  Form_Resize();
}

PictureBox& FSMainForm::ScoreBox(int player) {
  return *PerPlayer<PictureBox*>(&picPlayer1Score, &picPlayer2Score, &picPlayer3Score)[player];
}

void FSMainForm::Form_Resize() {
  picStandby.MoveTo(0, 0, Width, Height);
  picStandby.BringToFront();
  picQuestionPicture.MoveTo(0, 0, Width, Height);
  picQuestionPicture.BringToFront();
  for (PictureBox* panel : {&picQuestion, &picHideQuestion, &picCorrect, &picWinner, &picBonus, &picSound}) {
    MoveLike(*panel, picStandby, Extent::Copy);
    panel->BringToFront();
  }
  lblAnswerClock.BringToFront();
  picStandby.BringToFront();
  MoveLike(picMOD, picStandby, Extent::Copy);
  picMOD.BringToFront();
  picMODVideo.MoveTo(0, 0, picMOD.Width, picMOD.Height);
  MediaPlayer1.MoveTo(0, 0, picMODVideo.Width, picMODVideo.Height);
  for (Image* fill : {&imgQuestionBackground, &imgCorrect, &imgBonus, &imgSound, &imgStandby}) {
    fill->MoveTo(0, 0, Width, Height);
  }
  lblRightWrong.MoveTo(0, (picCorrect.Height - lblRightWrong.Height) / 2, Width, lblRightWrong.Height);
  const double block = lblPlayerName.Height + lblWhatIsAnswer.Height;
  lblPlayerName.MoveTo(0, (picHideQuestion.Height - block) / 2, Width, lblPlayerName.Height);
  lblWhatIsAnswer.MoveTo(0, lblPlayerName.Top + lblPlayerName.Height, Width, lblWhatIsAnswer.Height);
}

}  // namespace pawnfield
