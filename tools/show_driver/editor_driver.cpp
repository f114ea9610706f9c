#include "editor_driver.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "desktop/windows/form_window.h"

namespace pawnfield {

namespace {
constexpr int kLookMs = 20;
constexpr int kSettleMs = 150;
}  // namespace

QWidget* EditorDriver::Window(const QString& form) const {
  for (FormWindow* window : driver_.Program().Windows()) {
    if (window->objectName() == form) return window;
  }
  return nullptr;
}

void EditorDriver::WhenShown(const QString& form, const std::function<void()>& work) {
  QWidget* window = Window(form);
  auto* look = new QTimer(window);
  QObject::connect(look, &QTimer::timeout, window, [look, window, work] {
    if (!window->isVisible()) return;
    look->stop();
    look->deleteLater();
    QTest::qWait(kSettleMs);
    work();
  });
  look->start(kLookMs);
}

bool EditorDriver::WithNewSet(const std::function<void()>& work) {
  bool opened = false;
  WhenShown("frmEditChoice", [this] { Press("frmEditChoice", "New"); });
  WhenShown("frmEditor", [&] {
    opened = true;
    work();
    Window("frmEditor")->close();
  });
  return driver_.Press("btnStartGame") && opened &&
         driver_.WaitFor([this] { return !Window("frmEditor")->isVisible(); });
}

bool EditorDriver::Press(const QString& form, const QString& widget) {
  auto* target = Window(form)->findChild<QWidget*>(widget);
  if (target == nullptr || !target->isVisible() || !target->isEnabled()) return false;
  QTest::mouseClick(target, Qt::LeftButton);
  driver_.Pause(kLookMs);
  return true;
}

bool EditorDriver::Type(const QString& widget, const QString& text) {
  auto* target = Window("frmEditor")->findChild<QWidget*>(widget);
  if (target == nullptr || !target->isVisible() || !target->isEnabled()) return false;
  target->setFocus();
  QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(target, text);
  return true;
}

bool EditorDriver::GiveFile(const QString& file, const std::function<bool()>& step) {
  bool chosen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || chosen) return;
    chosen = true;
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
    QTimer::singleShot(kSettleMs, dialog, [dialog] { QMetaObject::invokeMethod(dialog, "accept"); });
  });
  look.start(kLookMs);
  return step() && chosen;
}

bool EditorDriver::PressAndChoose(const QString& form, const QString& widget, const QString& file) {
  return GiveFile(file, [&] { return Press(form, widget); });
}

bool EditorDriver::ChooseEntry(const QString& entry, const QString& file) {
  auto* action = Window("frmEditor")->findChild<QAction*>(entry);
  if (action == nullptr || !action->isEnabled()) return false;
  return GiveFile(file, [action] {
    action->trigger();
    return true;
  });
}

bool EditorDriver::Write(const QString& question, const QString& answer, const QString& button, const QString& file) {
  const bool asked = file.isEmpty() ? Type("txtEnterQuestion", question) : PressAndChoose("frmEditor", button, file);
  return asked && Type("txtAnswer", answer);
}

void EditorDriver::TakePicture(const QString& form, const QString& name) { driver_.TakePicture(*Window(form), name); }

}  // namespace pawnfield
