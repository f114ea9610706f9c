#include "desktop/windows/small_windows.h"

#include "forms/small_forms.h"
#include "ui_frm_game_in_progress.h"
#include "ui_frm_game_loading.h"
#include "ui_frm_game_type_help.h"
#include "ui_frm_loading.h"
#include "ui_frm_splash.h"

namespace pawnfield {

namespace {

constexpr Qt::WindowFlags kBare = Qt::SplashScreen | Qt::FramelessWindowHint;

}  // namespace

LoadingWindow::LoadingWindow(LoadingForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmLoading>(*this);
  BindForm();
}

SplashWindow::SplashWindow(SplashForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmSplash>(*this);
  BindForm();
}

GameLoadingWindow::GameLoadingWindow(GameLoadingForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmGameLoading>(*this);
  BindForm();
}

GameInProgressWindow::GameInProgressWindow(GameInProgressForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmGameInProgress>(*this);
  BindForm();
}

GameTypeHelpWindow::GameTypeHelpWindow(GameTypeHelpForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmGameTypeHelp>(*this);
  BindForm();
}

}  // namespace pawnfield
