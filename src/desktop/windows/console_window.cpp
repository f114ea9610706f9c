#include "desktop/windows/console_window.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <array>
#include <utility>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/board_items.h"
#include "desktop/painting/ground.h"
#include "desktop/system/list_guard.h"
#include "desktop/windows/console_parts.h"
#include "desktop/windows/focus_rules.h"
#include "desktop/windows/key_bridge.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"
#include "desktop/windows/player_dress.h"
#include "desktop/windows/player_view.h"
#include "forms/main_form.h"

namespace pawnfield {

namespace {
constexpr double kPanelWidth = 7210;
constexpr double kPanelHeight = 5640;
constexpr double kAnswerHeight = 900;
// Of the window, in logical pixels.
constexpr int kLeastWidth = 1180, kLeastHeight = 640;
constexpr int kEnterMs = 200;
// A window manager on a busy machine moves windows that long after the monitors have changed.
constexpr int kLateMs = 6000;
}  // namespace

ConsoleWindow::ConsoleWindow(MainForm& form, FormWindows& windows, PictureCache& pictures, Screens& screens,
                             MpvVideo& video)
    : FormWindow(form, windows), main_(form), screens_(screens) {
  MakeMenus();
  MakeColumns();
  auto* soundButtons = MakeSoundButtons(*this);
  dress_ = DressPlayers(form, *this);
  arrangement_ = std::make_unique<ConsoleArrangement>(*this);
  board_ = AddCanvas(pictures, "pnlBoard");
  answer_ = AddCanvas(pictures, "fraAnswer");
  BindForm();
  FollowModels(form);
  FillBoard(form);
  FillAnswer(form, pictures);
  board_->Embed(form.fraSoundButtons, *soundButtons);
  board_->Embed(form.MediaPlayer1, *new PlayerView(video, this));
  Bindings()->AddCanvas(*board_);
  Bindings()->AddCanvas(*answer_);
  HoldUnseen();
  for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
  new KeyBridge(form, *this);
  focus_ = new FocusRules(*this, *findChild<QWidget*>("txtDJCommand"), *board_);
  late_.setSingleShot(true);
  late_.setInterval(kLateMs);
  late_.callOnTimeout(this, [this] { ReturnHome(); });
  screens_.Subscribe([this] {
    ReturnHome();
    if (WindowsHavePlaces()) late_.start();
  });
}

void ConsoleWindow::MakeMenus() {
  // The chips change their widths, which a corner of the menu bar doesn't follow: so both stand in a row of their own.
  auto* top = new QWidget(this);
  top->setObjectName("pnlTop");
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 8, 0);
  row->setSpacing(8);
  auto* bar = Add<QMenuBar>(*row, "pnlMenuBar", 1);
  bar->setNativeMenuBar(false);
  FillMenus(*bar);
  constexpr std::array<std::pair<const char*, const char*>, 5> kChips{{{"chpAudience", "Audience screen"},
                                                                       {"chpBuzzers", "Buzzers"},
                                                                       {"chpSound", "Sound"},
                                                                       {"chpRecord", "Record"},
                                                                       {"chpPhones", "Phones"}}};
  for (const auto& [name, spoken] : kChips) Add<ChipView>(*row, name)->setAccessibleName(spoken);
  setMenuWidget(top);
}

void ConsoleWindow::FillMenus(QMenuBar& bar) {
  // Null stands for a line between entries; an entry that an earlier menu has is the same one.
  const auto menu = [&](const char* name, const std::vector<const char*>& entries) {
    QMenu* made = bar.addMenu("");
    made->setObjectName(name);
    for (const char* entry : entries) {
      QAction* known = entry == nullptr ? nullptr : findChild<QAction*>(entry);
      if (entry == nullptr) {
        made->addSeparator();
      } else if (known != nullptr) {
        made->addAction(known);
      } else {
        made->addAction("")->setObjectName(entry);
      }
    }
  };
  menu("mnuFile", {"fileClearAllScores", "mnuFileOptions", "mnuFileAddPlayerNames", "mnuFileOptionalHeaders",
                   "mnuFileInterface", "mnuFilePages", "mnuFileShowCheck", "mTestK7Controllers", nullptr,
                   "mnuFileResults", "mnuFileBringBack", "mnuFileExit"});
  menu("mnuZR610", {"mnuMapMF", "mnuReconnectMF", "mTestK7Controllers"});
  menu("mnuHelp", {"mnuHelpManual", "mnuHelpDocumentation", "mnuHelpSupport", "mnuHelpProjector", "mnuHelpAbout"});
  findChild<QAction*>("mnuHelpManual")->setShortcut(Qt::Key_F1);
}

void ConsoleWindow::MakeColumns() {
  auto* central = new QWidget(this);
  central->setObjectName("pnlCentral");
  setCentralWidget(central);
  auto* rows = new QVBoxLayout(central);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(0);
  rows->addLayout(columns, 1);
  columns->addWidget(MakeSetUpColumn());
  columns->addWidget(MakeMiddleColumn(), 1);
  columns->addWidget(MakeRightColumn());
  rows->addWidget(MakeStatusRow());
  // Nothing tells how much room a Wayland session leaves, and it may end a program whose maximised window is larger:
  // the board gives way.
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
  if (WindowsHavePlaces()) setMinimumSize(kLeastWidth, kLeastHeight);
}

Canvas* ConsoleWindow::AddCanvas(PictureCache& pictures, const QString& name) {
  auto* place = findChild<QWidget*>(name);
  auto* canvas = new Canvas(pictures, place);
  canvas->setObjectName((name == "pnlBoard" ? name : "pnlAnswer") + "Canvas");
  place->layout()->addWidget(canvas);
  return canvas;
}

void ConsoleWindow::FollowModels(MainForm& form) {
  // What isn't there leaves its place to what stands beside or below it.
  for (const char* name :
       {"fraCues", "lblLineCount", "lblLineWho", "lblLineClock", "lblLineSet", "lblLineContinue", "lblLineNext",
        "chkAnimation", "lblShowAnimation", "chkHideQuestion", "lblHidequestionOption", "chkIncorrectPenalty",
        "lblLose100Points", "cboTimedResponse", "lblTimedResponse", "cboAutoContinue", "lblAutoContinuePrompt"}) {
    LeavePlace(*findChild<QWidget*>(name));
  }
  for (Label* part : LineParts()) {
    part->AddObserver(*this);
    Changed(*part, PropertyId::Caption);
  }
  for (int player = 1; player <= kPlayers; ++player) {
    form.lblPlayer1[PlayerIndex(player)].AddObserver(*this);
    Changed(form.lblPlayer1[PlayerIndex(player)], PropertyId::Caption);
  }
  for (std::size_t i = 0; i < kPlayers; ++i) {
    form.btnBuzzer[i].AddObserver(*this);
    Changed(form.btnBuzzer[i], PropertyId::Enabled);
  }
  for (Control* control : {static_cast<Control*>(&form.ScoreCopy(3)), static_cast<Control*>(&form.lstRingInOrder),
                           static_cast<Control*>(&form.lblSelectPlayer), static_cast<Control*>(&form.lblLineExpected),
                           static_cast<Control*>(&form.lblUndoNote), static_cast<Control*>(&form.btnAnswerClock),
                           static_cast<Control*>(&form.fraCues)}) {
    control->AddObserver(*this);
    Changed(*control, PropertyId::Visible);
  }
}

void ConsoleWindow::Changed(Control& control, PropertyId id) {
  if (&control == &main_) {
    FormWindow::Changed(control, id);
    return;
  }
  for (int player = 1; player <= kPlayers; ++player) {
    const Label& name = main_.lblPlayer1[PlayerIndex(player)];
    if (&control != &name) continue;
    const QString number = QString::number(player);
    findChild<QLabel*>("pnlScoreName" + number)->setText(Unescape(name.Caption));
    findChild<KeyButton*>(Member("btnSelectPlayer", player - 1))->SetFace(number + ' ' + Unescape(name.Caption));
  }
  for (int strip = 0; strip < kPlayers; ++strip) {
    if (&control != &main_.btnBuzzer[static_cast<std::size_t>(strip)]) continue;
    const bool open = control.Enabled && control.ToolTipText->empty();
    findChild<KeyButton*>(Member("btnBuzzer", strip))->SetFace(open ? "open to ring in" : " ");
  }
  for (Label* part : LineParts()) {
    if (&control == part) findChild<QWidget*>(QString::fromStdString(part->Name()))->setHidden(part->Caption->empty());
  }
  if (&control == &main_.ScoreCopy(3)) {
    findChild<QWidget*>("pnlScoreRow3")->setVisible(control.Visible);
  }
  if (&control == &main_.lstRingInOrder) findChild<QWidget*>("pnlRingInOrder")->setVisible(control.Visible);
  if (&control == &main_.lblLineExpected) KeepLineWhole();
  if (&control == &main_.lblSelectPlayer) findChild<QWidget*>("pnlByHand")->setVisible(control.Visible);
  if (&control == &main_.btnAnswerClock) findChild<QWidget*>("pnlAnswerClock")->setVisible(control.Enabled);
  if (&control == &main_.fraCues) findChild<QWidget*>("pnlSetUp")->setVisible(!control.Visible);
  if (&control == &main_.lblUndoNote) findChild<KeyButton*>("btnUndo")->SetNote(Unescape(main_.lblUndoNote.Caption));
}

std::array<Label*, 6> ConsoleWindow::LineParts() const {
  return {&main_.lblLineCount, &main_.lblLineWho,      &main_.lblLineClock,
          &main_.lblLineSet,   &main_.lblLineContinue, &main_.lblLineNext};
}

// A long name gives way to what is expected.
void ConsoleWindow::KeepLineWhole() {
  auto* expected = findChild<QLabel*>("lblLineExpected");
  QFont smallest = expected->font();
  smallest.setPixelSize(kSmallestPixels);
  expected->setMinimumWidth(QFontMetrics(smallest).horizontalAdvance(expected->text()) + 4);
}

// What can't be pressed says why, in the place of what it does.
bool ConsoleWindow::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (event->type() != QEvent::ToolTip || widget == nullptr || widget->isEnabled() || !main_.WhyNot) return false;
  for (const Control* control : main_.Controls()) {
    if (WidgetName(control->Name()) != widget->objectName()) continue;
    const std::string why = main_.WhyNot(*control);
    if (why.empty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Unescape(why), widget);
    return true;
  }
  return false;
}

void ConsoleWindow::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  arrangement_->Fit(event->size());
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
  Bindings()->Hold({// The buttons' own notes.
                    "lblUndoNote",
                    // Is told by "BY HAND", whose tip it is.
                    "lblSelectPlayer",
                    // Pictures kept for others.
                    "imgBkgnd", "imgXa", "imgXb", "imgOa", "imgOb", "imgTa", "imgTb", "imgCursor(0)", "imgCursor(1)",
                    "imgCursor(2)", "imgCursor(3)", "imgStandardStandby", "imgStandardBonus", "imgStandardHeader",
                    // What only measures.
                    "lblQuestionAutoResize", "lblAnswerAutoResize", "lblWinnerResize", "lblWinner", "picEntScreen",
                    // They report the game's state to what asks for it; a button that does nothing would only mislead.
                    "btnCorrect", "btnEnableAllBuzzers", "btnPlayVideo", "btnStopVideo",
                    // The player's own widget shows it.
                    "MediaPlayer1"});
}

void ConsoleWindow::ShowForm() {
  if (const QScreen* screen = screens_.First()) setGeometry(screens_.Room(*screen));
  showMaximized();
  connect(windowHandle(), &QWindow::screenChanged, this, &ConsoleWindow::NoteHome, Qt::UniqueConnection);
  if (!WindowsHavePlaces()) QTimer::singleShot(kEnterMs, this, &ConsoleWindow::AwaitScreen);
  raise();
  activateWindow();
  focus_->Rest();
}

// A compositor tells a window of its screen a moment after it is first drawn. Of the one that the toolkit has guessed
// right it tells nothing.
void ConsoleWindow::AwaitScreen() {
  if (!isVisible()) return;
  windowHandle()->isExposed() ? NoteHome() : QTimer::singleShot(kEnterMs, this, &ConsoleWindow::AwaitScreen);
}

bool ConsoleWindow::focusNextPrevChild(bool next) {
  return (focus_ != nullptr && focus_->Rescue()) || FormWindow::focusNextPrevChild(next);
}

void ConsoleWindow::ReturnHome() {
  if (!WindowsHavePlaces()) ReturnByScreen();
  const QScreen* home = screens_.First();
  if (!WindowsHavePlaces() || !isVisible() || home == nullptr) return;
  if (screens_.Place(*home).contains(geometry().center())) return;
  const bool maximised = isMaximized();
  if (maximised) showNormal();
  setGeometry(screens_.Room(*home));
  if (maximised) showMaximized();
}

// A compositor that has put the console elsewhere is asked once: a window can say on which screen it fills the whole.
void ConsoleWindow::ReturnByScreen() {
  QScreen* home = screens_.Home();
  const qsizetype count = QGuiApplication::screens().size();
  if (count < 2) sentHomeAt_ = 0;
  if (!isVisible() || screens_.IsChanging() || home == nullptr || screen() == home || sentHomeAt_ == count) return;
  sentHomeAt_ = count;
  screens_.Unsettle();
  CloseOpenLists();
  hide();
  windowHandle()->setScreen(home);
  showFullScreen();
  QTimer::singleShot(kEnterMs, this, [this] {
    showMaximized();
    AwaitScreen();
  });
}

void ConsoleWindow::moveEvent(QMoveEvent* event) {
  FormWindow::moveEvent(event);
  // Elsewhere the toolkit's guess of the screen isn't to be taken for the desktop's word.
  if (WindowsHavePlaces()) NoteHome();
}

// What moves the console so soon after a change of monitors is no operator's hand.
void ConsoleWindow::NoteHome() {
  if (late_.isActive()) return;
  const QScreen* screen = WindowsHavePlaces() ? screens_.At(geometry().center()) : this->screen();
  if (isVisible() && screen != nullptr) screens_.MoveHome(*screen);
}

void ConsoleWindow::ComeForward() {
  if (isMinimized()) showMaximized();
  raise();
  activateWindow();
}

}  // namespace pawnfield
