#include "forms/main_form.h"

#include <array>

#include "data/house_colors.h"

namespace pawnfield {

namespace {

// The panel that the board and the question panels share, in twips.
constexpr double kPanelWidth = 7210;
constexpr double kPanelHeight = 5640;
constexpr double kClockWidth = 700;
constexpr double kClockHeight = 600;

template <typename... Items>
void Hide(Items&... items) {
  ((items.Visible = false), ...);
}

template <typename... Items>
void Disable(Items&... items) {
  ((items.Enabled = false), ...);
}

void Contain(Control& container, std::initializer_list<Control*> parts) {
  for (Control* part : parts) part->Container = &container;
}

template <std::size_t N>
void MakeGroup(ControlArray<OptionButton, N>& options) {
  std::vector<OptionButton*> group;
  for (std::size_t i = 0; i < N; ++i) group.push_back(&options[i]);
  for (OptionButton* option : group) option->Group = group;
}

template <typename T, std::size_t N>
void Caption(ControlArray<T, N>& controls, const std::array<const char*, N>& captions) {
  for (std::size_t i = 0; i < N; ++i) controls[i].Caption = captions[i];
}

}  // namespace

MainForm::MainForm() : Form("frmMain") {
  MakeGroup(optGameType);
  MakeGroup(optPlayers);
  MakeGroup(optGridControl);
  MakeGroup(optGameEnds);
  MakeGroup(optSoundBank);
  SetCaptions();
  PlaceControls();
  SetInitialStates();
}

void MainForm::SetCaptions() {
  Form::Caption = "Pawnfield";
  mnuFile.Caption = "&File";
  fileClearAllScores.Caption = "&Clear All Scores";
  mnuFileOptions.Caption = "&Options";
  mnuFileAddPlayerNames.Caption = "Add Player &Names";
  mnuFileOptionalHeaders.Caption = "Optional &Headers";
  mnuFileInterface.Caption = "&Interface Wizard...";
  mnuFilePages.Caption = "&Phones and pages...";
  mnuFileShowCheck.Caption = "Show &check...";
  mnuFileResults.Caption = "&Results...";
  mnuFileBringBack.Caption = "&Bring back the last game";
  mnuFileExit.Caption = "E&xit";
  mnuZR610.Caption = "ZR-610 System";
  mnuMapMF.Caption = "Map Players";
  mnuReconnectMF.Caption = "Reconnect";
  mTestK7Controllers.Caption = "Test Controllers";
  mnuHelp.Caption = "&Help";
  mnuHelpManual.Caption = "Operator's &Manual";
  mnuHelpDocumentation.Caption = "&Documentation";
  mnuHelpSupport.Caption = "&Support";
  mnuHelpProjector.Caption = "Connect to &Projector";
  mnuHelpAbout.Caption = "&About";

  for (const GameNature& type : kGameTypes) {
    optGameType[RowOf(type.Mode)].Caption = type.Caption;
    optGameType[RowOf(type.Mode)].ToolTipText = type.ToolTip;
  }
  btnGameTypeHelp.Caption = "?";
  btnGameTypeHelp.ToolTipText = "What the game types are";
  pawnfield::Caption(optPlayers, std::array{"2", "3"});
  pawnfield::Caption(optGridControl, std::array{"3x3", "4x4", "5x5"});
  pawnfield::Caption(optGameEnds, std::array{"Finish Row", "Full Board"});
  pawnfield::Caption(optSoundBank, std::array{"1", "2", "3"});
  lblShowAnimation.Caption = "Show Animation";
  lblHidequestionOption.Caption = "Hide Question";
  lblLose100Points.Caption = "Lose 100 Points on Incorrect";
  lblExtKeyboardCtrl.Caption = "External Keyboard Control";
  btnEditKeyboardCtrl.Caption = "Configure";
  lblTimedResponse.Caption = "Timed Response";
  lblAutoContinuePrompt.Caption = "Auto Continue";
  pawnfield::Caption(lblScoring, std::array{"Correct Answer Value", "Line Bonus"});
  lblMediaBank.Caption = "Media Bank:";

  lblListLeftArrow.Caption = ">";
  lblListRightArrow.Caption = "<";
  btnSelectGame.Caption = "Load";
  btnStartGame.Caption = "Edit";
  btnStart.Caption = "Start";
  btnContinue.Caption = "Continue";
  btnPlayMode.Caption = "Show";
  btnStandbyMode.Caption = "Hide";
  btnNextPlayer.Caption = "Next Player";
  btnSkipQuestion.Caption = "Skip";
  btnUndo.Caption = "Undo";
  btnReset.Caption = "Reset";
  btnEndGame.Caption = "End Game";
  // The key that does the same.
  btnContinue.ToolTipText = "C";
  btnNextPlayer.ToolTipText = "Ctrl+N";
  btnSkipQuestion.ToolTipText = "Ctrl+S";
  btnUndo.ToolTipText = "Ctrl+U";
  btnQuestionCorrect.ToolTipText = "Y";
  btnQuestionIncorrect.ToolTipText = "N";
  lblSelectPlayer.Caption = "Manually select player if buzzers are not connected";
  pawnfield::Caption(btnSelectPlayer, std::array{"1", "2", "3"});
  pawnfield::Caption(btnBuzzer, std::array{"1", "2", "3"});
  btnEnableAllBuzzers.Caption = "Enable All";
  const std::array amounts{"100k", "10k", "1k", "100", "10", "1"};
  for (int player = 1; player <= kPlayers; ++player) {
    for (std::size_t i = 0; i < 6; ++i) {
      ScoreUp(player)[i].Caption = std::string("+") + amounts[i];
      ScoreDown(player)[i].Caption = std::string("-") + amounts[i];
    }
  }
  btnSounds.Caption = "Sounds";
  btnStopSounds.Caption = "Stop Sounds";
  btnMute.Caption = "Mute";
  btnStopAll.Caption = "Stop All";
  btnCues.Caption = "Cues";

  pawnfield::Caption(lblPlayer1, std::array{"PLAYER 1", "PLAYER 2", "PLAYER 3"});
  for (Label* label : {&lblP1Score, &lblP2Score, &lblP3Score, &lblPlayer1Score, &lblPlayer2Score, &lblPlayer3Score}) {
    label->Caption = "0";
  }
  lblGridCoords.Caption = "Type Grid\r\nCoordinates";
  fraAnswer.Caption = "Answer";
  btnPlay.Caption = "Play";
  btnPlayVideo.Caption = ">";
  btnStop.Caption = "Stop";
  btnAnswerClock.Caption = "Clock";
  btnAnswerClock.ToolTipText = "F9";
  btnCorrect.Caption = "Correct";
  btnQuestionCorrect.Caption = "Correct";
  btnQuestionIncorrect.Caption = "Incorrect";
}

void MainForm::PlaceControls() {
  picEntScreen.MoveTo(0, 0, 6735, 7815);
  for (PictureBox* panel :
       {&picQuestion, &picQuestionPicture, &picSound, &picBonus, &picCorrect, &picWinner, &picStandby, &picMOD}) {
    panel->MoveTo(0, 0, kPanelWidth, kPanelHeight);
    panel->BringToFront();
  }
  constexpr double kResultHeight = 900;
  picLastResult.MoveTo(0, kPanelHeight - kResultHeight, kPanelWidth, kResultHeight);
  picLastResult.BackColor = kDeepGround;
  lblLastResult.MoveTo(150, 60, kPanelWidth - 300, kResultHeight - 120);
  lblLastResult.Font = {"Segoe UI", 15, true, false};
  lblLastResult.ForeColor = kGold;
  Contain(picLastResult, {&lblLastResult});
  for (Image* image : {&imgQuestionBackground, &imgSound, &imgBonus, &imgCorrect, &imgStandby}) {
    image->MoveTo(0, 0, kPanelWidth, kPanelHeight);
  }
  lblQuestion[0].MoveTo(100, 100, kPanelWidth - 200, kPanelHeight - 200);
  lblRightWrong.MoveTo(0, kPanelHeight / 2 - 900, kPanelWidth, 1800);
  lblWinner.MoveTo(0, 0, kPanelWidth, kPanelHeight);
  fraSoundButtons.MoveTo(0, kPanelHeight - 735, kPanelWidth, 735);
  lblAnswer.MoveTo(0, 0, kPanelWidth, 900);
  lblAnswerClock.MoveTo(kPanelWidth - kClockWidth, kPanelHeight - kClockHeight, kClockWidth, kClockHeight);
  imgHeader.MoveTo(0, 0, kPanelWidth, 750);
  txtOptionalHeading.MoveTo(0, 0, kPanelWidth, 750);

  Contain(picQuestion, {&imgQuestionBackground});
  for (std::size_t i = 0; i < 5; ++i) {
    lblQuestion[i].Container = &picQuestion;
    lblQuestion[i].Font = {"Courier New", 28, true, true};
  }
  Contain(picQuestionPicture, {&picImageResize[0]});
  Contain(picMOD, {&picMODVideo, &picMODPicture});
  Contain(picMODVideo, {&MediaPlayer1, &btnPlayVideo, &btnStopVideo});
  Contain(picMODPicture, {&picImageResize[1]});
  picMOD_Resize();
  Contain(picSound, {&imgSound, &fraSoundButtons});
  Contain(fraSoundButtons, {&btnPlay, &btnStop});
  Contain(picBonus, {&imgBonus});
  Contain(picCorrect, {&imgCorrect, &lblRightWrong});
  Contain(picWinner, {&lblWinner});
  Contain(picStandby, {&imgStandby, &picLastResult});
  Contain(fraAnswer, {&lblAnswer});
  Contain(fraGridControl, {&optGridControl[0], &optGridControl[1], &optGridControl[2]});
  Contain(picPlayer1, {&lblPlayer1[0]});
  Contain(picPlayer2, {&lblPlayer1[1]});
  Contain(picPlayer3, {&lblPlayer1[2]});
  Contain(picP1Score, {&lblP1Score});
  Contain(picP2Score, {&lblP2Score});
  Contain(picP3Score, {&lblP3Score});

  lblAnswerClock.Font = {"Segoe UI", 28, true, false};
  lblAnswerClock.BringToFront();
  lblWinner.Font = {"Segoe UI", 48, true, false};
  lblRightWrong.Font = {"Segoe UI", 72, true, false};
  lblAnswer.Font = {"Segoe UI", 24, true, false};
}

void MainForm::SetInitialStates() {
  tmrAnimate[0].Interval = 200;
  tmrAnimate[1].Interval = 200;
  for (Timer* timer : {&tmrArrowsTimer, &tmrGridEnable, &tmrBGMusic}) timer->Relaxed = true;
  Hide(picQuestion, picQuestionPicture, picSound, picBonus, picMOD, picMODVideo, picMODPicture, picCorrect, picWinner,
       picLastResult);
  Hide(imgBkgnd, imgXa, imgXb, imgOa, imgOb, imgTa, imgTb, imgStandardStandby, imgStandardBonus, imgStandardHeader);
  for (std::size_t i = 0; i < 4; ++i) imgCursor[i].Visible = false;
  for (std::size_t i = 1; i < 5; ++i) lblQuestion[i].Visible = false;
  Hide(lblQuestionAutoResize, lblAnswerAutoResize, lblWinnerResize, txtOptionalHeading);
  Hide(shpStart, lblListLeftArrow, lblListRightArrow, btnQuestionCorrect, btnQuestionIncorrect, lblAnswerClock);
  mnuZR610.Visible = false;
  mnuFileBringBack.Enabled = false;
  Hide(lblRingInOrder, lstRingInOrder, chpRecord, chpPhones);
  lstRingInOrder.ColumnHeaders = {"", "", "", "", ""};
  fraCues.Visible = false;
  Contain(fraCues, {&lstCues});
  for (std::size_t i = 0; i < fdrVolume.Size(); ++i) fdrVolume[i].Container = &fraCues;
  lstCues.ColumnHeaders = {"Key", "File", "Kind", "Length", "Left"};
  Disable(btnSkipQuestion, btnNextPlayer, btnContinue, btnStart, btnUndo, btnReset, btnEndGame, btnCorrect,
          btnAnswerClock);
}

void MainForm::picMOD_Resize() {
  for (Control* part : {static_cast<Control*>(&MediaPlayer1), static_cast<Control*>(&picMODPicture),
                        static_cast<Control*>(&picMODVideo)}) {
    part->MoveTo(0, 0, picMOD.Width, picMOD.Height);
  }
}

Label& MainForm::Score(int player) { return *PerPlayer<Label*>(&lblP1Score, &lblP2Score, &lblP3Score)[player]; }

const std::string& MainForm::PlayerName(int player) const { return lblPlayer1[PlayerIndex(player)].Caption.Get(); }

Label& MainForm::ScoreCopy(int player) {
  return *PerPlayer<Label*>(&lblPlayer1Score, &lblPlayer2Score, &lblPlayer3Score)[player];
}

PictureBox& MainForm::ScoreBox(int player) {
  return *PerPlayer<PictureBox*>(&picP1Score, &picP2Score, &picP3Score)[player];
}

PictureBox& MainForm::PlayerBox(int player) {
  return *PerPlayer<PictureBox*>(&picPlayer1, &picPlayer2, &picPlayer3)[player];
}

Image& MainForm::FaceA(int player) { return *PerPlayer<Image*>(&imgXa, &imgOa, &imgTa)[player]; }

Image& MainForm::FaceB(int player) { return *PerPlayer<Image*>(&imgXb, &imgOb, &imgTb)[player]; }

MainForm::ScoreButtons& MainForm::ScoreUp(int player) {
  return *PerPlayer<ScoreButtons*>(&btnScore1Up, &btnScore2Up, &btnScore3Up)[player];
}

MainForm::ScoreButtons& MainForm::ScoreDown(int player) {
  return *PerPlayer<ScoreButtons*>(&btnScore1Dn, &btnScore2Dn, &btnScore3Dn)[player];
}

}  // namespace pawnfield
