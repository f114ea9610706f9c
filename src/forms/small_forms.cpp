#include "forms/small_forms.h"

#include "data/game_types.h"

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
  std::string text;
  for (const GameNature& type : kGameTypes) {
    if (!text.empty()) text += "\r\n\r\n";
    text += std::string(type.Caption) + "\r\n" + type.Help;
  }
  lblGameTypes.Caption = text;
}

}  // namespace pawnfield
