#include "desktop/windows/small_windows.h"

#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "forms/small_forms.h"
#include "ui_frm_game_in_progress.h"
#include "ui_frm_game_loading.h"
#include "ui_frm_game_type_help.h"
#include "ui_frm_loading.h"
#include "ui_frm_splash.h"

namespace pawnfield {

namespace {

constexpr Qt::WindowFlags kBare = Qt::SplashScreen | Qt::FramelessWindowHint;
constexpr int kEnterMs = 200;

}  // namespace

LoadingWindow::LoadingWindow(LoadingForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmLoading>(*this);
  BindForm();
}

SplashWindow::SplashWindow(SplashForm& form, FormWindows& windows, Screens& screens)
    : FormWindow(form, windows, kBare), screens_(screens) {
  SetUp<Ui::frmSplash>(*this);
  BindForm();
  // A click anywhere is the splash's own.
  centralWidget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SplashWindow::ShowForm() {
  FormWindow::ShowForm();
  activateWindow();
  if (!screens_.HomeIsKnown()) QTimer::singleShot(kEnterMs, this, &SplashWindow::NoteHome);
}

// A Wayland session notifies a window of its screen a moment after it is drawn.
void SplashWindow::NoteHome() {
  if (isVisible() && windowHandle() != nullptr) screens_.MoveHome(*windowHandle()->screen());
}

void SplashWindow::keyPressEvent(QKeyEvent*) { form_.Click(); }

void SplashWindow::mousePressEvent(QMouseEvent*) { form_.Click(); }

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
