// The console's middle column: the line, the board, the players, the answer and the verdicts.
#include <QGroupBox>
#include <QLineEdit>

#include "desktop/windows/console_parts.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {

void AddLine(QBoxLayout& column) {
  auto* frame = Add<QFrame>(column, "pnlShowLine");
  frame->setProperty("role", "group");
  frame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  // Side by side where there is room, else one above the other.
  auto* both = new QBoxLayout(QBoxLayout::TopToBottom, frame);
  both->setObjectName("pnlShowLineParts");
  both->setContentsMargins(12, 4, 12, 4);
  both->setSpacing(2);
  auto* now = new QHBoxLayout;
  now->setSpacing(10);
  both->addLayout(now);
  Add<QLabel>(*now, "lblLineCount");
  auto* who = new QHBoxLayout;
  who->setSpacing(5);
  now->addLayout(who, 1);
  Add<ElidedLabel>(*who, "lblLineWho");
  auto* expected = Add<ModelLabel>(*who, "lblLineExpected", 1);
  expected->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  Add<QLabel>(*now, "lblLineClock");
  auto* start = Add<QWidget>(*now, "pnlAnswerClock");
  auto* place = new QHBoxLayout(start);
  place->setContentsMargins(0, 0, 0, 0);
  AddButton(*place, {"btnAnswerClock", 24, "Start the seconds to answer, or start them anew (F9)", "F9", "", "small"})
      ->setMinimumWidth(78);
  auto* next = new QHBoxLayout;
  next->setSpacing(14);
  both->addLayout(next, 1);
  Add<ElidedLabel>(*next, "lblLineSet");
  Add<QLabel>(*next, "lblLineContinue");
  auto* question = Add<ElidedLabel>(*next, "lblLineNext", 1);
  question->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  next->addStretch(0);
}

ModelLabel* AddFramed(QBoxLayout& row, const QString& frameName, const QString& labelName, int share) {
  auto* frame = Add<PictureFrame>(row, frameName, share);
  frame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  frame->setMinimumHeight(46);
  auto* inside = new QVBoxLayout(frame);
  inside->setContentsMargins(6, 4, 6, 4);
  auto* label = Add<ModelLabel>(*inside, labelName);
  label->setAlignment(Qt::AlignCenter);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  return label;
}

// A player's card. On a small screen it takes the player's score keys in.
void AddCard(QBoxLayout& row, int player) {
  const QString number = QString::number(player);
  auto* card = Add<QFrame>(row, "pnlPlayer" + number, 1);
  card->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* column = new QVBoxLayout(card);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  QHBoxLayout* boxes = AddRow(*column, 3);
  ModelLabel* name = AddFramed(*boxes, "picPlayer" + number, Member("lblPlayer1", player - 1), 8);
  name->setProperty("shrinks", true);
  name->setWordWrap(true);
  name->setToolTip("Double-click to enter the name (Ctrl+Z for player 1)");
  AddFramed(*boxes, "picP" + number + "Score", "lblP" + number + "Score", 4);
}

void AddAnswer(QBoxLayout& column) {
  QHBoxLayout* row = AddRow(column, 8);
  auto* square = Add<QFrame>(*row, "pnlSquare");
  square->setProperty("role", "group");
  square->setFixedWidth(150);
  auto* inside = new QVBoxLayout(square);
  inside->setContentsMargins(8, 4, 8, 6);
  inside->setSpacing(2);
  auto* prompt = Add<ModelLabel>(*inside, "lblGridCoords");
  prompt->setWordWrap(true);
  prompt->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  prompt->setMinimumHeight(28);
  auto* box = Add<QLineEdit>(*inside, "txtDJCommand");
  box->setMinimumHeight(34);
  box->setReadOnly(true);
  box->setAccessibleName("Grid coordinates");
  box->setToolTip("Type a column and a row, as in C4, and press Enter");
  auto* answer = Add<QGroupBox>(*row, "fraAnswer", 1);
  answer->setMinimumHeight(72);
  // As high as the square's box beside it.
  answer->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* place = new QVBoxLayout(answer);
  place->setContentsMargins(12, 2, 12, 6);
}

void AddVerdicts(QBoxLayout& column) {
  QHBoxLayout* row = AddRow(column, 12);
  AddButton(*row, {"btnQuestionCorrect", 54, "The answer is correct (Y)", "Y", "The answer is correct"}, 10);
  AddButton(*row, {"btnQuestionIncorrect", 54, "The answer is incorrect (N)", "N", "The answer is incorrect"}, 10);
  AddButton(*row, {"btnUndo", 54, "Take the last square back (Ctrl+U)", "Ctrl U"}, 7);
}

}  // namespace

QWidget* MakeMiddleColumn() {
  auto* middle = new QWidget;
  middle->setObjectName("pnlMiddle");
  middle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(8, 8, 8, 6);
  column->setSpacing(7);
  AddLine(*column);
  auto* board = Add<QFrame>(*column, "pnlBoard", 1);
  board->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  board->setMinimumSize(240, 180);
  auto* inside = new QVBoxLayout(board);
  inside->setContentsMargins(1, 1, 1, 1);
  QHBoxLayout* cards = AddRow(*column, 8);
  for (int player = 1; player <= 3; ++player) AddCard(*cards, player);
  AddAnswer(*column);
  AddVerdicts(*column);
  return middle;
}

}  // namespace pawnfield
