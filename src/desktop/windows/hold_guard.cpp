#include "desktop/windows/hold_guard.h"

#include <QAction>

#include "desktop/windows/hold_button.h"
#include "engine/safe_click.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void GuardButton(Show& show, HoldButton& view, Button& button) {
  const QString hint = HoldHint(show, button);
  view.setToolTip(view.toolTip().isEmpty() ? hint : view.toolTip() + "\n" + hint);
  view.setAccessibleDescription(hint);
  QObject::connect(&view, &HoldButton::Held, &view, [&button] { button.Click(); });
  QObject::connect(&view, &HoldButton::LetGo, &view,
                   [&show, hint] { show.frmMain.lblStatusBar.Caption = hint.toStdString(); });
  QObject::connect(&view, &HoldButton::clicked, &view, [&show, &button] { ClickSafely(show, button); });
}

}  // namespace

void GuardConsole(Show& show, QWidget& console) {
  MainForm& form = show.frmMain;
  for (Button* button : {&form.btnReset, &form.btnEndGame}) {
    auto* view = console.findChild<HoldButton*>(QString::fromStdString(button->Name()));
    if (view != nullptr) GuardButton(show, *view, *button);
  }
  auto* clear = console.findChild<QAction*>(QString::fromStdString(form.fileClearAllScores.Name()));
  if (clear == nullptr) return;
  // In place of the entry's own click, which asks nothing.
  QObject::disconnect(clear, &QAction::triggered, nullptr, nullptr);
  QObject::connect(clear, &QAction::triggered, clear, [&show] { ClickSafely(show, show.frmMain.fileClearAllScores); });
}

}  // namespace pawnfield
