#include "desktop/windows/console_parts.h"

#include <QProgressBar>

#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"

namespace pawnfield {

QHBoxLayout* AddRow(QBoxLayout& into, int spacing) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(spacing);
  into.addLayout(row);
  return row;
}

QFrame* AddGroup(QBoxLayout& into, const QString& name, const QString& title, QVBoxLayout*& inside) {
  auto* group = Add<QFrame>(into, name);
  group->setProperty("role", "group");
  inside = new QVBoxLayout(group);
  inside->setContentsMargins(11, 5, 11, 6);
  inside->setSpacing(3);
  QHBoxLayout* row = AddRow(*inside);
  auto* heading = Add<QLabel>(*row, name + "Title");
  heading->setText(title);
  heading->setProperty("role", "title");
  row->addStretch(1);
  return group;
}

QHBoxLayout* TitleRow(QFrame& group) { return static_cast<QHBoxLayout*>(group.layout()->itemAt(0)->layout()); }

KeyButton* AddButton(QBoxLayout& into, const ButtonLook& look, int stretch) {
  auto* button = new KeyButton;
  DressButton(*button, look);
  into.addWidget(button, stretch);
  return button;
}

void DressButton(KeyButton& button, const ButtonLook& look) {
  button.setObjectName(look.Name);
  button.setMinimumHeight(look.LeastHeight);
  button.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  button.setToolTip(look.Tip);
  button.SetKey(look.Key);
  if (*look.Spoken != '\0') button.setAccessibleName(look.Spoken);
  if (*look.Role != '\0') button.setProperty("role", look.Role);
}

QString Member(const QString& array, int index) { return array + '_' + QString::number(index); }

QWidget* MakeStatusRow() {
  auto* foot = new QFrame;
  foot->setObjectName("pnlStatus");
  foot->setFixedHeight(22);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(12, 0, 12, 0);
  auto* status = Add<ModelLabel>(*row, "lblStatusBar", 1);
  status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* progress = Add<QProgressBar>(*row, "prgMediaCheck");
  progress->setFixedSize(160, 10);
  progress->setTextVisible(false);
  progress->setToolTip("Looking at the set's pictures and sounds");
  return foot;
}

QWidget* MakeSoundButtons(QWidget& parent) {
  auto* frame = new QFrame(&parent);
  frame->setObjectName("fraSoundButtons");
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(6, 4, 6, 6);
  row->setSpacing(12);
  row->addStretch(1);
  for (const char* name : {"btnPlay", "btnStop"}) AddButton(*row, {name, 40}, 0)->setMinimumWidth(140);
  row->addStretch(1);
  return frame;
}

}  // namespace pawnfield
