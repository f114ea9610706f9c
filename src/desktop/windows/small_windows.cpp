#include "desktop/windows/small_windows.h"

#include <QLabel>
#include <QPainterPath>
#include <QVBoxLayout>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/game_type_picture.h"
#include "forms/small_forms.h"
#include "ui_frm_game_in_progress.h"
#include "ui_frm_game_loading.h"
#include "ui_frm_game_type_help.h"
#include "ui_frm_loading.h"
#include "ui_frm_splash.h"

namespace pawnfield {

namespace {

constexpr Qt::WindowFlags kBare = Qt::SplashScreen | Qt::FramelessWindowHint;
constexpr int kCorner = 12;

void AddGameTypes(const GameTypeHelpForm& form, QVBoxLayout& column) {
  const QStringList parts = Unescape(form.lblGameTypes.Caption).split("\r\n\r\n");
  for (int i = 0; i < parts.size(); ++i) {
    auto* row = new QHBoxLayout;
    row->setSpacing(18);
    row->addWidget(new GameTypePicture(static_cast<std::size_t>(i)));
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    auto* title = new QLabel(parts[i].section("\r\n", 0, 0));
    title->setProperty("role", "number");
    auto* text = new QLabel(parts[i].section("\r\n", 1));
    text->setWordWrap(true);
    words->addStretch();
    words->addWidget(title);
    words->addWidget(text);
    words->addStretch();
    row->addLayout(words, 1);
    column.addLayout(row);
  }
}

}  // namespace

LoadingWindow::LoadingWindow(LoadingForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmLoading>(*this);
  BindForm();
}

SplashWindow::SplashWindow(SplashForm& form, FormWindows& windows) : FormWindow(form, windows, kBare) {
  SetUp<Ui::frmSplash>(*this);
  BindForm();
  // A click anywhere is the splash's own.
  centralWidget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SplashWindow::ShowForm() {
  FormWindow::ShowForm();
  // The window has no corners beside the picture's.
  QPainterPath outline;
  outline.addRoundedRect(rect(), kCorner, kCorner);
  setMask(QRegion(outline.toFillPolygon().toPolygon()));
  activateWindow();
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
  // Each type's part of the text stands beside its picture; the label holds the whole.
  Bindings()->Hold({"lblGameTypes"});
  AddGameTypes(form, *findChild<QVBoxLayout*>("pnlTypes"));
}

}  // namespace pawnfield
