#include "desktop/windows/console_window.h"

#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "desktop/painting/board_items.h"
#include "desktop/painting/ground.h"
#include "desktop/windows/focus_rules.h"
#include "desktop/windows/key_bridge.h"
#include "desktop/windows/player_dress.h"
#include "desktop/windows/player_view.h"
#include "forms/main_form.h"
#include "ui_frm_main.h"

namespace pawnfield {

namespace {
constexpr double kPanelWidth = 7210;
constexpr double kPanelHeight = 5640;
constexpr double kAnswerHeight = 900;
}  // namespace

ConsoleWindow::ConsoleWindow(MainForm& form, FormWindows& windows, PictureCache& pictures, Screens& screens,
                             MpvVideo& video)
    : FormWindow(form, windows), screens_(screens) {
  Ui::frmMain design;
  design.setupUi(this);
  if (!WindowsHavePlaces()) {
    // Nothing tells how much room a Wayland session leaves, and it may end a program whose maximised window is larger:
    // the board gives way.
    setMinimumSize(0, 0);
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
  }
  // The frame that blinks around Start lies over nothing that must be hit.
  design.shpStart->setAttribute(Qt::WA_TransparentForMouseEvents);
  design.shpStart->raise();
  board_ = new Canvas(pictures, design.pnlBoard);
  board_->setObjectName("pnlBoardCanvas");
  design.pnlBoard->layout()->addWidget(board_);
  answer_ = new Canvas(pictures, design.fraAnswer);
  answer_->setObjectName("pnlAnswerCanvas");
  design.fraAnswer->layout()->addWidget(answer_);
  dress_ = DressPlayers(form, *this);
  BindForm();
  FillBoard(form);
  FillAnswer(form, pictures);
  board_->Embed(form.fraSoundButtons, *design.fraSoundButtons);
  board_->Embed(form.MediaPlayer1, *new PlayerView(video, this));
  Bindings()->AddCanvas(*board_);
  Bindings()->AddCanvas(*answer_);
  HoldUnseen();
  new KeyBridge(form, *this);
  focus_ = new FocusRules(*this, *findChild<QWidget*>("txtDJCommand"), *board_);
  screens_.Subscribe([this] { ReturnHome(); });
}

void ConsoleWindow::FillBoard(MainForm& form) {
  board_->SetLogicalSize(kPanelWidth, kPanelHeight);
  board_->SetFillsDisplay(true);
  board_->SetBackdrop(PaintGround);
  board_->Add(form.imgHeader);
  ItemStyle piece;
  piece.Corner = 0.09;
  board_->Add(form.imgDJEntry, piece);
  for (const auto& [control, style] : BoardStyles(form)) board_->Add(*control, style);
  ItemStyle header;
  header.IsOneLine = true;
  board_->Add(form.txtOptionalHeading, header);
  ItemStyle panel;
  panel.PaintsGround = true;
  for (PictureBox* box : {&form.picQuestion, &form.picQuestionPicture, &form.picSound, &form.picBonus, &form.picMOD,
                          &form.picMODVideo, &form.picMODPicture, &form.picCorrect, &form.picStandby}) {
    board_->Add(*box, panel);
  }
  for (Image* image : {&form.imgQuestionBackground, &form.picImageResize[0], &form.picImageResize[1], &form.imgSound,
                       &form.imgBonus, &form.imgCorrect, &form.imgStandby}) {
    board_->Add(*image);
  }
  for (const auto& [control, style] : FittedTextStyles(form)) board_->Add(*control, style);
  for (const auto& [control, style] : ResultStyles(form)) board_->Add(*control, style);
  board_->Add(form.picLastResult, panel);
  board_->Add(form.lblLastResult);
  ItemStyle verdict;
  verdict.IsVerdict = verdict.IsOutlined = true;
  board_->Add(form.lblRightWrong, verdict);
  board_->Add(form.lblAnswerClock);
}

void ConsoleWindow::FillAnswer(MainForm& form, PictureCache&) {
  answer_->SetLogicalSize(kPanelWidth, kAnswerHeight);
  answer_->SetBackdrop([](QPainter& painter, const QRect& area) { painter.fillRect(area, QColor("#080C16")); });
  answer_->Add(form.lblAnswer);
}

void ConsoleWindow::HoldUnseen() {
  Bindings()->Hold({// Pictures kept for others.
                    "imgBkgnd", "imgXa", "imgXb", "imgOa", "imgOb", "imgTa", "imgTb", "imgCursor(0)", "imgCursor(1)",
                    "imgCursor(2)", "imgCursor(3)", "imgStandardStandby", "imgStandardBonus", "imgStandardHeader",
                    // What only measures.
                    "lblQuestionAutoResize", "lblAnswerAutoResize", "lblWinnerResize", "lblWinner", "picEntScreen",
                    // They report the game's state to what asks for it; a button that does nothing would only mislead.
                    "btnCorrect", "btnAnswerClock", "btnEnableAllBuzzers", "btnPlayVideo", "btnStopVideo",
                    // The player's own widget shows it.
                    "MediaPlayer1"});
}

void ConsoleWindow::ShowForm() {
  if (const QScreen* screen = screens_.First()) setGeometry(screens_.Room(*screen));
  showMaximized();
  connect(windowHandle(), &QWindow::screenChanged, this, &ConsoleWindow::NoteHome, Qt::UniqueConnection);
  raise();
  activateWindow();
  focus_->Rest();
}

bool ConsoleWindow::focusNextPrevChild(bool next) {
  return (focus_ != nullptr && focus_->Rescue()) || FormWindow::focusNextPrevChild(next);
}

void ConsoleWindow::ReturnHome() {
  const QScreen* home = screens_.First();
  if (!WindowsHavePlaces() || !isVisible() || home == nullptr) return;
  if (screens_.Place(*home).contains(geometry().center())) return;
  const bool maximised = isMaximized();
  if (maximised) showNormal();
  setGeometry(screens_.Room(*home));
  if (maximised) showMaximized();
}

void ConsoleWindow::moveEvent(QMoveEvent* event) {
  FormWindow::moveEvent(event);
  NoteHome();
}

void ConsoleWindow::NoteHome() {
  const QScreen* screen = WindowsHavePlaces() ? screens_.At(geometry().center()) : this->screen();
  if (isVisible() && screen != nullptr) screens_.MoveHome(*screen);
}

void ConsoleWindow::ComeForward() {
  if (isMinimized()) showMaximized();
  raise();
  activateWindow();
}

}  // namespace pawnfield
