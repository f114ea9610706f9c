// frmMain, the operator's console: its controls, their design-time captions, sizes and states. Owned by the show.
#pragma once

#include "data/game_types.h"
#include "data/players.h"
#include "forms/winner_panel.h"
#include "platform/controls.h"

namespace pawnfield {

class MainForm : public Form {
 public:
  MainForm();

  using ScoreButtons = ControlArray<Button, 6>;

  // By player 1..3; another number is error 9.
  Label& Score(int player);
  // As the console shows it.
  const std::string& PlayerName(int player) const;
  Label& ScoreCopy(int player);
  PictureBox& ScoreBox(int player);
  PictureBox& PlayerBox(int player);
  Image& FaceA(int player);
  Image& FaceB(int player);
  ScoreButtons& ScoreUp(int player);
  ScoreButtons& ScoreDown(int player);
  // Gives the panels of media on demand the size of picMOD.
  void picMOD_Resize();

  // Menus.
  Menu mnuFile{*this, "mnuFile"};
  Menu fileClearAllScores{*this, "fileClearAllScores"};
  Menu mnuFileOptions{*this, "mnuFileOptions"};
  Menu mnuFileAddPlayerNames{*this, "mnuFileAddPlayerNames"};
  Menu mnuFileOptionalHeaders{*this, "mnuFileOptionalHeaders"};
  Menu mnuFileInterface{*this, "mnuFileInterface"};
  Menu mnuFilePages{*this, "mnuFilePages"};
  Menu mnuFileShowCheck{*this, "mnuFileShowCheck"};
  Menu mnuFileResults{*this, "mnuFileResults"};
  Menu mnuFileBringBack{*this, "mnuFileBringBack"};
  Menu mnuFileExit{*this, "mnuFileExit"};
  Menu mnuZR610{*this, "mnuZR610"};
  Menu mnuMapMF{*this, "mnuMapMF"};
  Menu mnuReconnectMF{*this, "mnuReconnectMF"};
  Menu mTestK7Controllers{*this, "mTestK7Controllers"};
  Menu mnuHelp{*this, "mnuHelp"};
  Menu mnuHelpManual{*this, "mnuHelpManual"};
  Menu mnuHelpDocumentation{*this, "mnuHelpDocumentation"};
  Menu mnuHelpSupport{*this, "mnuHelpSupport"};
  Menu mnuHelpProjector{*this, "mnuHelpProjector"};
  Menu mnuHelpAbout{*this, "mnuHelpAbout"};

  // Where the show is: the line over the board, and the chips in the menu bar. engine/show_line writes the line.
  Label lblLineSet{*this, "lblLineSet"};
  Label lblLineCount{*this, "lblLineCount"};
  // Who is meant, in the player's colour, and what is expected.
  Label lblLineWho{*this, "lblLineWho"};
  Label lblLineExpected{*this, "lblLineExpected"};
  Label lblLineClock{*this, "lblLineClock"};
  Label lblLineContinue{*this, "lblLineContinue"};
  Label lblLineNext{*this, "lblLineNext"};
  // Whether what is set before the show can be set now: "IN PLAY", "LOCKED IN PLAY".
  Label lblInPlay{*this, "lblInPlay"};
  // What an undo takes back.
  Label lblUndoNote{*this, "lblUndoNote"};
  Chip chpAudience{*this, "chpAudience"};
  Chip chpBuzzers{*this, "chpBuzzers"};
  Chip chpSound{*this, "chpSound"};
  Chip chpRecord{*this, "chpRecord"};
  Chip chpPhones{*this, "chpPhones"};
  // Who rang in, in order: a row is the player's number, the name, when it was, and "amber" where that is too close to
  // call. Both are hidden while there is nothing to tell.
  Label lblRingInOrder{*this, "lblRingInOrder"};
  ListView lstRingInOrder{*this, "lstRingInOrder"};
  // A hand on the sound: what plays, the music, and on demand all volumes and the filled letters. Volumes stand as the
  // options have them: effects, letter keys, clips, music, verdicts.
  Label lblNowPlaying{*this, "lblNowPlaying"};
  Fader fdrMusic{*this, "fdrMusic"};
  Button btnMute{*this, "btnMute"};
  Button btnStopAll{*this, "btnStopAll"};
  Button btnCues{*this, "btnCues"};
  Frame fraCues{*this, "fraCues"};
  ControlArray<Fader, 5> fdrVolume{*this, "fdrVolume"};
  // Letter, name, kind, length, and what is left of one that plays.
  ListView lstCues{*this, "lstCues"};
  Timer tmrSoundPanel{*this, "tmrSoundPanel", 500};
  // Why a control can't be pressed now, in words; empty for one that can. Set with the handlers.
  std::function<std::string(const Control&)> WhyNot;
  // Runs while the line counts seconds.
  Timer tmrShowLine{*this, "tmrShowLine", 200};

  // What is set before the show.
  ControlArray<OptionButton, kGameTypes.size()> optGameType{*this, "optGameType"};
  Button btnGameTypeHelp{*this, "btnGameTypeHelp"};
  ControlArray<OptionButton, 2> optPlayers{*this, "optPlayers"};
  Frame fraGridControl{*this, "fraGridControl"};
  ControlArray<OptionButton, 3> optGridControl{*this, "optGridControl"};
  ControlArray<OptionButton, 2> optGameEnds{*this, "optGameEnds"};
  CheckBox chkAnimation{*this, "chkAnimation"};
  Label lblShowAnimation{*this, "lblShowAnimation"};
  CheckBox chkHideQuestion{*this, "chkHideQuestion"};
  Label lblHidequestionOption{*this, "lblHidequestionOption"};
  CheckBox chkIncorrectPenalty{*this, "chkIncorrectPenalty"};
  Label lblLose100Points{*this, "lblLose100Points"};
  CheckBox chkExtKeyboardCtrl{*this, "chkExtKeyboardCtrl"};
  Label lblExtKeyboardCtrl{*this, "lblExtKeyboardCtrl"};
  Button btnEditKeyboardCtrl{*this, "btnEditKeyboardCtrl"};
  Label lblTimedResponse{*this, "lblTimedResponse"};
  ComboBox cboTimedResponse{*this, "cboTimedResponse"};
  Label lblAutoContinuePrompt{*this, "lblAutoContinuePrompt"};
  ComboBox cboAutoContinue{*this, "cboAutoContinue"};
  ControlArray<Label, 2> lblScoring{*this, "lblScoring"};
  ControlArray<ComboBox, 2> cbxScore{*this, "cbxScore"};
  Label lblMediaBank{*this, "lblMediaBank"};
  ControlArray<OptionButton, 3> optSoundBank{*this, "optSoundBank"};

  // The set, and what moves the show.
  Label lblListLeftArrow{*this, "lblListLeftArrow"};
  ComboBox cboList{*this, "cboList"};
  Label lblListRightArrow{*this, "lblListRightArrow"};
  Button btnSelectGame{*this, "btnSelectGame"};
  Button btnStartGame{*this, "btnStartGame"};
  Frame shpStart{*this, "shpStart"};
  Button btnStart{*this, "btnStart"};
  Button btnContinue{*this, "btnContinue"};
  Button btnPlayMode{*this, "btnPlayMode"};
  Button btnStandbyMode{*this, "btnStandbyMode"};
  Button btnNextPlayer{*this, "btnNextPlayer"};
  Button btnSkipQuestion{*this, "btnSkipQuestion"};
  Button btnUndo{*this, "btnUndo"};
  Button btnReset{*this, "btnReset"};
  Button btnEndGame{*this, "btnEndGame"};
  Label lblSelectPlayer{*this, "lblSelectPlayer"};
  ControlArray<Button, kPlayers> btnSelectPlayer{*this, "btnSelectPlayer"};
  ControlArray<Button, kPlayers> btnBuzzer{*this, "btnBuzzer"};
  Button btnEnableAllBuzzers{*this, "btnEnableAllBuzzers"};
  ScoreButtons btnScore1Up{*this, "btnScore1Up"};
  ScoreButtons btnScore1Dn{*this, "btnScore1Dn"};
  ScoreButtons btnScore2Up{*this, "btnScore2Up"};
  ScoreButtons btnScore2Dn{*this, "btnScore2Dn"};
  ScoreButtons btnScore3Up{*this, "btnScore3Up"};
  ScoreButtons btnScore3Dn{*this, "btnScore3Dn"};
  Button btnSounds{*this, "btnSounds"};
  Button btnStopSounds{*this, "btnStopSounds"};

  // Players: the names stand as captions of lblPlayer1, the scores as captions of lblP1Score..lblP3Score.
  PictureBox picPlayer1{*this, "picPlayer1"};
  PictureBox picPlayer2{*this, "picPlayer2"};
  PictureBox picPlayer3{*this, "picPlayer3"};
  ControlArray<Label, kPlayers> lblPlayer1{*this, "lblPlayer1"};
  PictureBox picP1Score{*this, "picP1Score"};
  PictureBox picP2Score{*this, "picP2Score"};
  PictureBox picP3Score{*this, "picP3Score"};
  Label lblP1Score{*this, "lblP1Score"};
  Label lblP2Score{*this, "lblP2Score"};
  Label lblP3Score{*this, "lblP3Score"};
  Label lblPlayer1Score{*this, "lblPlayer1Score"};
  Label lblPlayer2Score{*this, "lblPlayer2Score"};
  Label lblPlayer3Score{*this, "lblPlayer3Score"};

  // The board, by Left, Top, Width and Height in twips within the board panel.
  SquareGrid img{*this};
  Image imgA{*this, "imgA"}, imgB{*this, "imgB"}, imgC{*this, "imgC"}, imgD{*this, "imgD"}, imgE{*this, "imgE"},
      imgF{*this, "imgF"};
  Image img1{*this, "img1"}, img2{*this, "img2"}, img3{*this, "img3"}, img4{*this, "img4"}, img5{*this, "img5"},
      img6{*this, "img6"};
  Image imgDJEntry{*this, "imgDJEntry"};
  Image imgHeader{*this, "imgHeader"};
  Label lblGridCoords{*this, "lblGridCoords"};
  TextBox txtDJCommand{*this, "txtDJCommand"};
  TextBox txtOptionalHeading{*this, "txtOptionalHeading"};

  // Hidden holders of pictures.
  Image imgBkgnd{*this, "imgBkgnd"};
  Image imgXa{*this, "imgXa"}, imgXb{*this, "imgXb"}, imgOa{*this, "imgOa"}, imgOb{*this, "imgOb"},
      imgTa{*this, "imgTa"}, imgTb{*this, "imgTb"};
  ControlArray<Image, kPlayers + 1> imgCursor{*this, "imgCursor"};
  Image imgStandardStandby{*this, "imgStandardStandby"};
  Image imgStandardBonus{*this, "imgStandardBonus"};
  Image imgStandardHeader{*this, "imgStandardHeader"};

  // Panels over the board, and the answer.
  PictureBox picEntScreen{*this, "picEntScreen"};
  PictureBox picQuestion{*this, "picQuestion"};
  Image imgQuestionBackground{*this, "imgQuestionBackground"};
  ControlArray<Label, 5> lblQuestion{*this, "lblQuestion"};
  PictureBox picQuestionPicture{*this, "picQuestionPicture"};
  // For a question, and for media on demand.
  ControlArray<Image, 2> picImageResize{*this, "picImageResize"};
  PictureBox picSound{*this, "picSound"};
  Image imgSound{*this, "imgSound"};
  Frame fraSoundButtons{*this, "fraSoundButtons"};
  Button btnPlay{*this, "btnPlay"};
  Button btnStop{*this, "btnStop"};
  PictureBox picBonus{*this, "picBonus"};
  Image imgBonus{*this, "imgBonus"};
  PictureBox picMOD{*this, "picMOD"};
  PictureBox picMODVideo{*this, "picMODVideo"};
  MediaPlayer MediaPlayer1{*this, "MediaPlayer1"};
  PictureBox picMODPicture{*this, "picMODPicture"};
  Button btnPlayVideo{*this, "btnPlayVideo"};
  Button btnStopVideo{*this, "btnStopVideo"};
  PictureBox picCorrect{*this, "picCorrect"};
  Image imgCorrect{*this, "imgCorrect"};
  Label lblRightWrong{*this, "lblRightWrong"};
  PictureBox picWinner{*this, "picWinner"};
  Label lblWinner{*this, "lblWinner"};
  WinnerPanel Winner{*this, picWinner};
  PictureBox picStandby{*this, "picStandby"};
  Image imgStandby{*this, "imgStandby"};
  // How the last game ended, over standby until the next start.
  PictureBox picLastResult{*this, "picLastResult"};
  Label lblLastResult{*this, "lblLastResult"};
  Frame fraAnswer{*this, "fraAnswer"};
  Label lblAnswer{*this, "lblAnswer"};
  Button btnCorrect{*this, "btnCorrect"};
  Button btnQuestionCorrect{*this, "btnQuestionCorrect"};
  Button btnQuestionIncorrect{*this, "btnQuestionIncorrect"};
  Label lblQuestionAutoResize{*this, "lblQuestionAutoResize"};
  Label lblAnswerAutoResize{*this, "lblAnswerAutoResize"};
  Label lblWinnerResize{*this, "lblWinnerResize"};
  Label lblStatusBar{*this, "lblStatusBar"};
  // The seconds that are left to answer, and what starts them where nobody rings in.
  Label lblAnswerClock{*this, "lblAnswerClock"};
  Button btnAnswerClock{*this, "btnAnswerClock"};
  // How far the look at a set's media has come.
  ProgressBar prgMediaCheck{*this, "prgMediaCheck"};

  // Intervals are milliseconds.
  Timer tmrAutoContinue{*this, "tmrAutoContinue", 3000};
  Timer tmr5QuestionTimer{*this, "tmr5QuestionTimer", 3000};
  Timer tmrBonus{*this, "tmrBonus", 3000};
  Timer tmrCorrectSWF{*this, "tmrCorrectSWF", 4500};
  Timer tmrArrowsTimer{*this, "tmrArrowsTimer", 1000};
  Timer tmrGridEnable{*this, "tmrGridEnable", 2000, true};
  Timer tmrRotate{*this, "tmrRotate", 25};
  Timer tmrNonBuzzer{*this, "tmrNonBuzzer", 25};
  Timer tmrMainTimer{*this, "tmrMainTimer", 25};
  Timer tmrExternalCtrlFlasher{*this, "tmrExternalCtrlFlasher", 280};
  Timer tmrAnswer{*this, "tmrAnswer", 150};
  Timer tmrFlipPlayerPiece{*this, "tmrFlipPlayerPiece", 10};
  Timer tmrAnswerClock{*this, "tmrAnswerClock", 1000};
  Timer tmrWinner{*this, "tmrWinner", 5000};
  Timer tmrOptionalHeaders{*this, "tmrOptionalHeaders", 5000};
  Timer tmrBGMusic{*this, "tmrBGMusic", 1000, true};
  Timer tmrMODPicture{*this, "tmrMODPicture", 5000};
  Timer tmrVideoDelay{*this, "tmrVideoDelay", 500};
  // A look at a set's media that takes longer is shown.
  Timer tmrMediaCheck{*this, "tmrMediaCheck", 500};
  ControlArray<Timer, 2> tmrAnimate{*this, "tmrAnimate"};

 private:
  void SetCaptions();
  void PlaceControls();
  void SetInitialStates();
};

}  // namespace pawnfield
