// The console's right column: what moves the show, in the order of use.
#include <QGridLayout>
#include <QSlider>

#include "desktop/windows/console_parts.h"
#include "desktop/windows/hold_button.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {

constexpr int kSmallHeight = 30;

void AddPointer(QBoxLayout& row, const char* name) {
  auto* pointer = Add<ModelLabel>(row, name);
  pointer->setMinimumWidth(12);
  pointer->setProperty("blinks", true);
}

void AddSet(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  AddGroup(column, "pnlSet", "TRIVIA SET", group);
  QHBoxLayout* row = AddRow(*group, 4);
  AddPointer(*row, "lblListLeftArrow");
  auto* list = Add<ModelComboBox>(*row, "cboList", 1);
  list->setAccessibleName("Trivia set");
  list->setMinimumHeight(kSmallHeight);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  AddPointer(*row, "lblListRightArrow");
  group->addSpacing(2);
  row = AddRow(*group);
  AddButton(*row, {"btnSelectGame", kSmallHeight, "Open a set from a file"});
  AddButton(*row, {"btnStartGame", kSmallHeight, "Edit the set"});
}

// The frame that blinks lies around Start and over nothing that must be hit.
QWidget* MakeStart() {
  auto* place = new QWidget;
  place->setObjectName("pnlStart");
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  auto* frame = new EdgeFrame;
  frame->setObjectName("shpStart");
  frame->setProperty("blinks", true);
  frame->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* inside = new QVBoxLayout;
  inside->setContentsMargins(4, 4, 4, 4);
  AddButton(*inside, {"btnStart", 46, "Begin the game"});
  grid->addLayout(inside, 0, 0);
  grid->addWidget(frame, 0, 0);
  frame->raise();
  return place;
}

void AddMoves(QBoxLayout& column) {
  QHBoxLayout* row = AddRow(column, 4);
  row->addWidget(MakeStart(), 1);
  auto* place = Add<QWidget>(*row, "pnlContinue", 1);
  auto* inside = new QVBoxLayout(place);
  inside->setContentsMargins(4, 4, 4, 4);
  AddButton(*inside, {"btnContinue", 46, "Show the next question (C)", "C"});
  row = AddRow(column);
  AddButton(*row, {"btnPlayMode", 34, "Take the standby picture away", "", "Show the board"});
  AddButton(*row, {"btnStandbyMode", 34, "Show the standby picture", "", "Hide the board behind standby"});
  row = AddRow(column);
  AddButton(*row, {"btnNextPlayer", 40, "Give the turn to the next player (Ctrl+N)", "Ctrl N"});
  AddButton(*row, {"btnSkipQuestion", 40, "Go on to the next question (Ctrl+S)", "Ctrl S"});
}

void AddRingIn(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  QFrame* frame = AddGroup(column, "pnlRing", "RING-IN", group);
  auto* note = Add<QLabel>(*TitleRow(*frame), "pnlByHand");
  note->setText("BY HAND");
  note->setProperty("role", "title");
  note->setToolTip("Manually select player if buzzers are not connected");
  group->setSpacing(4);
  QHBoxLayout* hands = AddRow(*group);
  QHBoxLayout* lamps = AddRow(*group);
  for (int i = 0; i < 3; ++i) {
    const QByteArray number = QByteArray::number(i + 1);
    const QByteArray hand = Member("btnSelectPlayer", i).toLatin1();
    const QByteArray tip = "Player " + number + " rings in", spoken = tip + " (" + number + ")";
    AddButton(*hands, {hand.constData(), 36, tip.constData(), "", spoken.constData()});
    const QByteArray lamp = Member("btnBuzzer", i).toLatin1();
    const QByteArray lit = "Lit while player " + number + " may ring in";
    const QByteArray open = "Ring-in of player " + number + " open";
    KeyButton* strip = AddButton(*lamps, {lamp.constData(), 18, lit.constData(), "", open.constData(), "lamp"});
    strip->setFixedHeight(18);
    strip->setFocusPolicy(Qt::NoFocus);
  }
}

void AddRingInOrder(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  QFrame* frame = AddGroup(column, "pnlRingInOrder", "RING-IN ORDER", group);
  Add<QLabel>(*TitleRow(*frame), "lblRingInOrder")->setProperty("role", "title");
  Add<OrderView>(*group, "lstRingInOrder");
}

// The keys of one player's score, which stand in the panel of the scores or, on a small screen, in the player's card.
QWidget* MakeScoreKeys(int player) {
  const char* const amounts[] = {"100,000", "10,000", "1,000", "100", "10", "1"};
  const int widths[] = {42, 38, 35, 35, 31, 29};
  const QByteArray number = QByteArray::number(player);
  auto* keys = new QWidget;
  keys->setObjectName("pnlScoreKeys" + number);
  auto* grid = new QGridLayout(keys);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  for (int i = 0; i < 12; ++i) {
    const bool up = i < 6;
    const QByteArray amount = amounts[i % 6];
    const QByteArray name = "btnScore" + number + (up ? "Up_" : "Dn_") + QByteArray::number(i % 6);
    const QByteArray tip = (up ? "Add " : "Take ") + amount + (up ? " to player " : " from player ") + number;
    const QByteArray spoken = "Player " + number + (up ? " plus " : " minus ") + amount;
    auto* button = new KeyButton;
    DressButton(*button, {name.constData(), 26, tip.constData(), "", spoken.constData(), "score"});
    button->setMinimumWidth(widths[i % 6]);
    grid->addWidget(button, i / 6, i % 6);
    grid->setColumnStretch(i % 6, widths[i % 6]);
  }
  return keys;
}

void AddScores(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  AddGroup(column, "pnlScores", "SCORES", group);
  group->setSpacing(4);
  for (int player = 1; player <= 3; ++player) {
    const QString number = QString::number(player);
    auto* line = Add<QWidget>(*group, "pnlScoreRow" + number);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    row->addLayout(names, 1);
    auto* name = Add<ElidedLabel>(*names, "pnlScoreName" + number);
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* score = Add<ModelLabel>(*names, "lblPlayer" + number + "Score");
    score->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(MakeScoreKeys(player));
  }
}

void AddSound(QBoxLayout& column) {
  QVBoxLayout* group = nullptr;
  QFrame* frame = AddGroup(column, "pnlSound", "SOUND", group);
  auto* now = Add<ElidedLabel>(*TitleRow(*frame), "lblNowPlaying", 1);
  now->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  now->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QHBoxLayout* row = AddRow(*group, 6);
  Add<QLabel>(*row, "pnlMusic")->setText("Music");
  auto* music = Add<QSlider>(*row, "fdrMusic", 1);
  music->setOrientation(Qt::Horizontal);
  music->setMinimumHeight(28);
  music->setAccessibleName("Volume of the music");
  music->setToolTip("The volume of the music");
  AddButton(*row, {"btnMute", 28, "Turn the music off, and on again", "", "", "small"}, 0)->setMinimumWidth(58);
  AddButton(*row, {"btnStopAll", 28, "Stop every sound and film, and the music", "", "", "small"}, 0)
      ->setMinimumWidth(62);
  row = AddRow(*group, 6);
  AddButton(*row, {"btnSounds", 28, "The table of sounds", "", "", "small"});
  AddButton(*row, {"btnStopSounds", 28, "Stop every sound and film but the music", "", "", "small"});
  AddButton(*row, {"btnCues", 28, "All volumes, and the letters that bring something up", "", "", "small"});
}

void AddHold(QBoxLayout& row, const char* name, const char* tip) {
  auto* button = Add<HoldButton>(row, name, 1);
  button->setMinimumHeight(34);
  button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  button->setToolTip(tip);
  button->SetKey("hold");
  button->setProperty("role", "end");
}

void AddEnds(QBoxLayout& column) {
  QHBoxLayout* row = AddRow(column);
  AddHold(*row, "btnReset", "Begin again: hold the button");
  AddHold(*row, "btnEndGame", "End the game and name the winner: hold the button");
}

}  // namespace

QWidget* MakeRightColumn() {
  auto* right = new QWidget;
  right->setObjectName("pnlRight");
  right->setFixedWidth(344);
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(8, 8, 10, 6);
  column->setSpacing(6);
  AddSet(*column);
  AddMoves(*column);
  AddRingIn(*column);
  AddRingInOrder(*column);
  AddScores(*column);
  AddSound(*column);
  column->addStretch(1);
  AddEnds(*column);
  return right;
}

}  // namespace pawnfield
