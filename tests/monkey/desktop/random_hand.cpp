#include "monkey/desktop/random_hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QWindow>
#include <algorithm>
#include <array>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/canvas.h"
#include "desktop/windows/hold_button.h"
#include "desktop/windows/model_widgets.h"
#include "desktop/windows/player_view.h"
#include "desktop/windows/volume_slider_view.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "monkey/random_world.h"

namespace pawnfield {

namespace {

bool IsTarget(QWidget& widget) {
  for (const char* kind : {"QAbstractButton", "QLineEdit", "QTextEdit", "QComboBox", "QAbstractSlider", "QMenuBar",
                           "QAbstractItemView", "QTabBar", "pawnfield::ModelLabel", "pawnfield::PictureFrame"}) {
    if (widget.inherits(kind)) return true;
  }
  return dynamic_cast<Canvas*>(&widget) != nullptr || dynamic_cast<VolumeSliderView*>(&widget) != nullptr ||
         dynamic_cast<PlayerView*>(&widget) != nullptr;
}

// The exit of the program ends the run.
bool IsExit(const QAction& action) {
  if (action.objectName() != "mnuFileExit") return false;
  for (const QObject* parent = action.parent(); parent != nullptr; parent = parent->parent()) {
    if (parent->objectName() == "frmMain") return true;
  }
  return false;
}

QString NameOf(const QWidget& widget) {
  const QString name = widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
  return widget.window()->objectName() + '.' + name;
}

}  // namespace

QPoint RandomHand::AnyPoint(const QWidget& widget) {
  const auto along = [this](int length) {
    return static_cast<int>(chance_.Below(static_cast<std::size_t>(std::max(1, length))));
  };
  return {along(widget.width()), along(widget.height())};
}

std::vector<QWidget*> RandomHand::Targets(const QWidget& window) {
  std::vector<QWidget*> targets;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool here = widget->window() == &window && widget->isVisible() && widget->isEnabled();
    if (here && IsTarget(*widget) && !widget->visibleRegion().isEmpty()) targets.push_back(widget);
  }
  if (chance_.OneIn(3)) return targets;
  const auto moves = [](const QWidget* widget) {
    const QString name = widget->objectName();
    // A set comes by the list more often than by a file dialog, which takes several acts.
    if (name == "btnSelectGame") return false;
    return MovesOn(name.toStdString()) || name == "cboList" || name == "pnlMenuBar" || name == "pnlBoardCanvas" ||
           name == "pnlScreen";
  };
  const auto end = std::stable_partition(targets.begin(), targets.end(), moves);
  if (end != targets.begin()) targets.erase(end, targets.end());
  return targets;
}

void RandomHand::Click(QWidget& widget, const QPoint& at) {
  QWidget* window = widget.window();
  if (window->windowHandle() == nullptr) return;
  // What is wider than the window that shows it is hit where it is seen.
  const QPoint seen = widget.mapTo(window, at);
  const QPoint place(std::clamp(seen.x(), 0, window->width() - 1), std::clamp(seen.y(), 0, window->height() - 1));
  // A dialog can be gone after its first click.
  const bool twice = chance_.OneIn(12) && !window->isModal();
  note_((twice ? "double click " : "click ") + NameOf(widget) + QString(" %1,%2").arg(at.x()).arg(at.y()));
  twice ? QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, place)
        : QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
}

// Nobody else acts meanwhile: the mouse is one.
void RandomHand::Hold(QWidget& widget) {
  note_("hold " + NameOf(widget));
  const QPointer<QWidget> target = &widget;
  QElapsedTimer held;
  held.start();
  holding_ = true;
  QTest::mousePress(target, Qt::LeftButton);
  while (target && held.elapsed() < kHoldMs + 150) QTest::qWait(20);
  if (target) QTest::mouseRelease(target, Qt::LeftButton);
  holding_ = false;
}

void RandomHand::Drag(QWidget& widget) {
  QWidget* window = widget.window();
  const QPointer<QWindow> handle = window->windowHandle();
  const QPoint from = widget.mapTo(window, AnyPoint(widget));
  const QPoint to = widget.mapTo(window, AnyPoint(widget));
  note_("drag " + NameOf(widget));
  if (handle) QTest::mousePress(handle, Qt::LeftButton, {}, from);
  if (handle) QTest::mouseMove(handle, to);
  if (handle) QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
}

void RandomHand::TypeInto(QWidget& widget) {
  const QPointer<QWidget> target = &widget;
  const QString text = Unescape(kWords[chance_.Below(kWords.size())]);
  Click(widget, widget.rect().center());
  note_("type \"" + text + '"');
  if (target && chance_.OneIn(2)) QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
  for (const QChar letter : text) {
    if (target && target->isVisible() && target->isEnabled()) {
      QTest::sendKeyEvent(QTest::Click, target, Qt::Key_A, QString(letter), Qt::NoModifier);
    }
  }
  if (target && chance_.OneIn(3)) QTest::keyClick(target, Qt::Key_Return);
}

// What a hand strikes by habit or by a slip.
void RandomHand::PressHabitKey(QWidget& target) {
  static constexpr std::array kHabits = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space};
  if (chance_.OneIn(2)) {
    const Qt::Key key = kHabits[chance_.Below(kHabits.size())];
    note_("key " + QKeySequence(key).toString());
    QTest::keyClick(&target, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    return;
  }
  const char letter = static_cast<char>('a' + chance_.Below(26));
  note_(QString("key ") + letter);
  QTest::keyClick(&target, letter);
}

void RandomHand::PressKey(QWidget& window) {
  static constexpr std::array kSpecial = {Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,  Qt::Key_Space,  Qt::Key_Left,
                                          Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down, Qt::Key_Delete, Qt::Key_Home,
                                          Qt::Key_PageUp, Qt::Key_Backspace, Qt::Key_F1};
  static constexpr std::array kWithControl = {Qt::Key_N, Qt::Key_S, Qt::Key_U, Qt::Key_Z,
                                              Qt::Key_A, Qt::Key_C, Qt::Key_V};
  static constexpr std::string_view kTyped = "123456789abcdefynqrstABCDEYN^0";
  const QPointer<QWidget> target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  if (onlyKeys_ && !chance_.OneIn(6)) {
    PressHabitKey(*target);
  } else if (chance_.OneIn(3)) {
    const Qt::Key key = kSpecial[chance_.Below(kSpecial.size())];
    note_("key " + QKeySequence(key).toString());
    QTest::keyClick(target, key);
  } else if (chance_.OneIn(4)) {
    const Qt::Key key = kWithControl[chance_.Below(kWithControl.size())];
    note_("key Ctrl+" + QKeySequence(key).toString());
    QTest::keyClick(target, key, Qt::ControlModifier);
  } else {
    const char key = kTyped[chance_.Below(kTyped.size())];
    note_(QString("key ") + key);
    QTest::keyClick(target, key);
  }
}

// Mostly a square of the board.
void RandomHand::ActOnCanvas(QWidget& widget) {
  auto& canvas = static_cast<Canvas&>(widget);
  const auto any = [this] { return static_cast<int>(chance_.Below(static_cast<std::size_t>(show_.state.GridSize))); };
  for (SquareGrid* squares : {&show_.frmMain.img, &show_.frmFSMain.img}) {
    const Image& square = *squares->At(any(), any());
    if (!canvas.Holds(square) || chance_.OneIn(5)) continue;
    Click(canvas, canvas.PixelRect(square).center().toPoint());
    return;
  }
  Click(canvas, AnyPoint(canvas));
}

void RandomHand::ActOnRows(QWidget& widget) {
  auto& view = static_cast<QAbstractItemView&>(widget);
  const QAbstractItemModel* model = view.model();
  if (model == nullptr || model->rowCount() == 0 || model->columnCount() == 0) return;
  const auto below = [this](int count) { return static_cast<int>(chance_.Below(static_cast<std::size_t>(count))); };
  const QModelIndex index = model->index(below(model->rowCount()), below(model->columnCount()));
  view.scrollTo(index);
  Click(*view.viewport(), view.visualRect(index).center());
}

void RandomHand::ActOn(QWidget& widget) {
  if (auto* bar = qobject_cast<QMenuBar*>(&widget)) {
    const auto actions = bar->actions();
    const QAction* action = actions[static_cast<qsizetype>(chance_.Below(static_cast<std::size_t>(actions.size())))];
    if (action->isVisible()) Click(*bar, bar->actionGeometry(const_cast<QAction*>(action)).center());
  } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
    Click(*tabs, tabs->tabRect(static_cast<int>(chance_.Below(static_cast<std::size_t>(tabs->count())))).center());
  } else if (widget.inherits("QLineEdit") || widget.inherits("QTextEdit")) {
    TypeInto(widget);
  } else if (widget.inherits("QAbstractSlider") || dynamic_cast<VolumeSliderView*>(&widget) != nullptr) {
    Drag(widget);
  } else if (widget.inherits("QAbstractItemView")) {
    ActOnRows(widget);
  } else if (dynamic_cast<Canvas*>(&widget) != nullptr) {
    ActOnCanvas(widget);
  } else if (widget.inherits("QRadioButton") || widget.inherits("QCheckBox")) {
    // An option is hit on its mark, which stands at the left.
    Click(widget, {8, widget.height() / 2});
  } else if (qobject_cast<HoldButton*>(&widget) != nullptr && chance_.OneIn(2)) {
    Hold(widget);
  } else {
    Click(widget, chance_.OneIn(4) ? AnyPoint(widget) : widget.rect().center());
  }
}

void RandomHand::ActIn(QWidget& window) {
  if (onlyKeys_ ? !chance_.OneIn(6) : chance_.OneIn(5)) {
    PressKey(window);
    return;
  }
  const auto targets = Targets(window);
  if (!targets.empty()) ActOn(*targets[chance_.Below(targets.size())]);
}

void RandomHand::ActInPopup(QWidget& popup) {
  if (chance_.OneIn(12)) {
    note_("close the list");
    popup.close();
  } else if (auto* menu = qobject_cast<QMenu*>(&popup)) {
    const auto actions = menu->actions();
    if (actions.isEmpty()) return;
    QAction* action = actions[static_cast<qsizetype>(chance_.Below(static_cast<std::size_t>(actions.size())))];
    if (action->isVisible() && !IsExit(*action)) Click(*menu, menu->actionGeometry(action).center());
  } else if (auto* view = popup.findChild<QAbstractItemView*>()) {
    ActOnRows(*view);
  } else {
    popup.close();
  }
}

void RandomHand::Answer(QWidget& dialog, const QString& file) {
  auto* any = qobject_cast<QDialog*>(&dialog);
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    const auto buttons = box->buttons();
    if (buttons.isEmpty()) return;
    QWidget* button = buttons[static_cast<qsizetype>(chance_.Below(static_cast<std::size_t>(buttons.size())))];
    Click(*button, button->rect().center());
  } else if (any == nullptr) {
    return;
  } else if (chance_.OneIn(3)) {
    note_("cancel " + NameOf(dialog));
    any->reject();
  } else {
    note_("accept " + NameOf(dialog) + ' ' + file);
    if (auto* files = qobject_cast<QFileDialog*>(any)) files->findChild<QLineEdit*>("fileNameEdit")->setText(file);
    if (auto* colors = qobject_cast<QColorDialog*>(any)) colors->setCurrentColor(QColor::fromRgb(chance_.Next()));
    if (auto* fonts = qobject_cast<QFontDialog*>(any)) {
      fonts->setCurrentFont(QFont("Courier New", 1 + static_cast<int>(chance_.Below(200))));
    }
    QMetaObject::invokeMethod(any, "accept");
  }
}

}  // namespace pawnfield
