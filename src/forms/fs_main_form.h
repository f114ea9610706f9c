// frmFSMain, what the audience sees: views that the console writes to, in a logical screen of 15360 by 11520 twips.
#pragma once

#include "data/players.h"
#include "forms/winner_panel.h"
#include "platform/controls.h"

namespace pawnfield {

class FSMainForm : public Form {
 public:
  FSMainForm();

  // Gives the full-size panels the form's size and stacks them: question, cover, verdict, winner, bonus, sound,
  // standby, media on demand, and the test picture in front of all.
  void Form_Resize();
  // Centres the cards of two players, or fills the row with three.
  void PlacePlayers(int players);
  // The band at the foot comes up over what a question shows, which then ends above it, or goes.
  void SetBand(bool up);
  // By player 1..3; another number is error 9.
  PictureBox& ScoreBox(int player);

  Image imgBackground{*this, "imgBackground"};
  Image imgHeader{*this, "imgHeader"};
  SquareGrid img{*this};
  Image imgA{*this, "imgA"}, imgB{*this, "imgB"}, imgC{*this, "imgC"}, imgD{*this, "imgD"}, imgE{*this, "imgE"},
      imgF{*this, "imgF"};
  Image img1{*this, "img1"}, img2{*this, "img2"}, img3{*this, "img3"}, img4{*this, "img4"}, img5{*this, "img5"},
      img6{*this, "img6"};
  Image imgDJEntry{*this, "imgDJEntry"};
  ControlArray<PictureBox, kPlayers> picPlayer{*this, "picPlayer"};
  ControlArray<Label, kPlayers> lblPlayer{*this, "lblPlayer"};
  PictureBox picPlayer1Score{*this, "picPlayer1Score"};
  PictureBox picPlayer2Score{*this, "picPlayer2Score"};
  PictureBox picPlayer3Score{*this, "picPlayer3Score"};
  // The scores.
  ControlArray<Label, kPlayers> Label11{*this, "Label11"};
  TextBox txtOptionalHeading{*this, "txtOptionalHeading"};
  Label lblDJCommand{*this, "lblDJCommand"};

  PictureBox picQuestion{*this, "picQuestion"};
  Image imgQuestionBackground{*this, "imgQuestionBackground"};
  ControlArray<Label, 5> lblQuestion{*this, "lblQuestion"};
  PictureBox picQuestionPicture{*this, "picQuestionPicture"};
  // For a question, and for media on demand.
  ControlArray<Image, 2> picImageResize{*this, "picImageResize"};
  PictureBox picHideQuestion{*this, "picHideQuestion"};
  Label lblPlayerName{*this, "lblPlayerName"};
  Label lblWhatIsAnswer{*this, "lblWhatIsAnswer"};
  // The seconds that are left to answer, in the colour of the player who answers.
  Label lblAnswerClock{*this, "lblAnswerClock"};
  PictureBox picCorrect{*this, "picCorrect"};
  Image imgCorrect{*this, "imgCorrect"};
  Label lblRightWrong{*this, "lblRightWrong"};
  PictureBox picWinner{*this, "picWinner"};
  Label lblWinner{*this, "lblWinner"};
  WinnerPanel Winner{*this, picWinner};
  PictureBox picBonus{*this, "picBonus"};
  Image imgBonus{*this, "imgBonus"};
  PictureBox picMOD{*this, "picMOD"};
  PictureBox picMODVideo{*this, "picMODVideo"};
  MediaPlayer MediaPlayer1{*this, "MediaPlayer1"};
  PictureBox picSound{*this, "picSound"};
  Image imgSound{*this, "imgSound"};
  PictureBox picStandby{*this, "picStandby"};
  Image imgStandby{*this, "imgStandby"};

  // Who plays, with which score, and whose turn it is, as long as a question hides the board.
  PictureBox picBand{*this, "picBand"};
  ControlArray<PictureBox, kPlayers> picBandPlayer{*this, "picBandPlayer"};
  ControlArray<Label, kPlayers> lblBandName{*this, "lblBandName"};
  ControlArray<Label, kPlayers> lblBandScore{*this, "lblBandScore"};

  // The test picture of the check before the show: the display's edges, its name and its size, and a line of letters as
  // small as the show has any.
  PictureBox picTest{*this, "picTest"};
  Label lblTestName{*this, "lblTestName"};
  Label lblTestSize{*this, "lblTestSize"};
  Label lblTestLine{*this, "lblTestLine"};
  Label lblTestHow{*this, "lblTestHow"};

  Timer tmrFSFlipPlayerPiece{*this, "tmrFSFlipPlayerPiece", 10};
  Timer tmrRePaint{*this, "tmrRePaint", 100, true};
  ControlArray<Timer, 1> tmrAnimate{*this, "tmrAnimate"};

 private:
  void PlaceTestPicture();
};

}  // namespace pawnfield
