// Builders that the console's columns share. All sizes are those of the smallest console; ConsoleArrangement makes them
// larger or closer.
#pragma once

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QString>

#include "desktop/windows/key_button.h"

namespace pawnfield {

template <typename W>
W* Add(QBoxLayout& into, const QString& name, int stretch = 0) {
  auto* widget = new W;
  widget->setObjectName(name);
  into.addWidget(widget, stretch);
  return widget;
}

QHBoxLayout* AddRow(QBoxLayout& into, int spacing = 8);
// A framed group with a title in small capitals; its own column is `inside`.
QFrame* AddGroup(QBoxLayout& into, const QString& name, const QString& title, QVBoxLayout*& inside);
// The row of the group's title, for what stands at its right end.
QHBoxLayout* TitleRow(QFrame& group);

// What a button is, beside its caption.
struct ButtonLook {
  const char* Name;
  int LeastHeight;
  const char* Tip = "";
  const char* Key = "";
  const char* Spoken = "";
  const char* Role = "";
};
KeyButton* AddButton(QBoxLayout& into, const ButtonLook& look, int stretch = 1);
void DressButton(KeyButton& button, const ButtonLook& look);

// Room that the form's name for a control's array member gives its widget: "btnBuzzer", 2 is "btnBuzzer_2".
QString Member(const QString& array, int index);

// The three columns and the foot, each with its widgets.
QWidget* MakeSetUpColumn();
QWidget* MakeMiddleColumn();
QWidget* MakeRightColumn();
QWidget* MakeStatusRow();
QWidget* MakeSoundButtons(QWidget& parent);

}  // namespace pawnfield
