#include "forms/small_forms.h"

namespace pawnfield {

LoadingForm::LoadingForm() : Form("frmLoading") { lblLoading.Caption = "Loading...."; }

AlwaysLoadedForm::AlwaysLoadedForm() : Form("frmAlwaysLoaded") {}

SplashForm::SplashForm() : Form("frmSplash") {
  Width = 9000;
  Height = 5400;
  imgBG.MoveTo(0, 0, 9000, 5400);
  oProgress.MoveTo(50, 5100, 0, 150);
}

GameLoadingForm::GameLoadingForm() : Form("frmGameLoading") {
  lblPleaseWait.Caption = "Please wait for system files to update...";
}

GameInProgressForm::GameInProgressForm() : Form("frmGameInProgress") {
  Form::Caption = "Game In Progress";
  lblPrompt.Caption = "What would you like to do?";
  btnReset.Caption = "Start New";
  btnCancel.Caption = "Resume";
}

GameTypeHelpForm::GameTypeHelpForm() : Form("frmGameTypeHelp") {
  Form::Caption = "Game Types";
  btnOk.Caption = "OK";
  lblGameTypes.Caption =
      "Challenge Mode A\r\nPlayers take turns. The host asks; a placed piece passes the turn on.\r\n\r\n"
      "Challenge Mode B\r\nA player goes on placing pieces until Next Player is pressed.\r\n\r\n"
      "Trivia Mode A\r\nPlayers take turns answering questions from the loaded set.\r\n\r\n"
      "Trivia Mode B\r\nA player answers questions from the set until one is incorrect.\r\n\r\n"
      "Trivia Mode C\r\nThe question appears and the first player to ring in answers.";
}

}  // namespace pawnfield
