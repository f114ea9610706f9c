#include "desktop/windows/access.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <memory>
#include <vector>

#include "desktop/painting/canvas.h"

namespace pawnfield {

namespace {

// The toolkit calls an option whose model decides about its group a check box, and its "Toggle" passes by whoever
// listens for a click.
class OptionAccess : public QAccessibleWidget {
 public:
  explicit OptionAccess(QAbstractButton& button)
      : QAccessibleWidget(&button, qobject_cast<QRadioButton*>(&button) != nullptr ? QAccessible::RadioButton
                                                                                   : QAccessible::CheckBox),
        button_(button) {}

  QString text(QAccessible::Text kind) const override {
    const QString told = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && told.isEmpty() ? button_.text().remove('&') : told;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_.isChecked();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names{toggleAction(), pressAction()};
    return names + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != toggleAction() && action != pressAction()) {
      QAccessibleWidget::doAction(action);
    } else if (button_.isEnabled() && button_.isVisible()) {
      button_.click();
    }
  }

 private:
  QAbstractButton& button_;
};

// The toolkit names a list by what is chosen in it, where it knows a label of its own.
class ListAccess : public QAccessibleWidget {
 public:
  explicit ListAccess(QComboBox& list) : QAccessibleWidget(&list, QAccessible::ComboBox), list_(list) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return list_.currentText();
    return QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list_.view()->isVisible();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction() && action != pressAction()) {
      QAccessibleWidget::doAction(action);
    } else if (list_.isEnabled() && list_.isVisible()) {
      list_.view()->isVisible() ? list_.hidePopup() : list_.showPopup();
    }
  }

 private:
  QComboBox& list_;
};

// One of the things on a canvas.
class PartAccess : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PartAccess(const Canvas& canvas, const SpokenPart& part) : canvas_(canvas), part_(part) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(const_cast<Canvas*>(&canvas_));
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? part_.Text() : QString(); }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect place = part_.Place == nullptr ? canvas_.rect() : canvas_.PixelRect(*part_.Place).toAlignedRect();
    return {canvas_.mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override { return part_.Role; }
  // What has nothing to tell is not there.
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = state.offscreen = part_.Text().isEmpty() || !canvas_.isVisible();
    state.readOnly = true;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool acts = type == QAccessible::ActionInterface && part_.Press;
    return acts ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction() && part_.Press) part_.Press();
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const Canvas& canvas_;
  SpokenPart part_;
};

class CanvasAccess : public QAccessibleWidget {
 public:
  explicit CanvasAccess(Canvas& canvas) : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas) {}
  ~CanvasAccess() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return Parts() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0) return nullptr;
    return index < Parts() ? Part(index) : QAccessibleWidget::child(index - Parts());
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < Parts(); ++i) {
      if (Part(i) == child) return i;
    }
    const int other = QAccessibleWidget::indexOfChild(child);
    return other < 0 ? other : Parts() + other;
  }
  // The one in front, which is told last.
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = Parts() - 1; i >= 0; --i) {
      if (!Part(i)->state().invisible && Part(i)->rect().contains(x, y)) return Part(i);
    }
    return QAccessibleWidget::childAt(x, y);
  }

 private:
  // The canvas may have been asked for before it knew what it tells.
  int Parts() const {
    for (std::size_t i = ids_.size(); i < canvas_.Spoken().size(); ++i) {
      ids_.push_back(QAccessible::registerAccessibleInterface(new PartAccess(canvas_, canvas_.Spoken()[i])));
    }
    return static_cast<int>(ids_.size());
  }
  QAccessibleInterface* Part(int index) const {
    return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
  }

  Canvas& canvas_;
  mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface* AccessOf(const QString& className, QObject* object) {
  if (className == "QRadioButton" || className == "QCheckBox") {
    auto* button = qobject_cast<QAbstractButton*>(object);
    return button == nullptr ? nullptr : new OptionAccess(*button);
  }
  auto* list = className == "QComboBox" ? qobject_cast<QComboBox*>(object) : nullptr;
  if (list != nullptr && !list->accessibleName().isEmpty()) return new ListAccess(*list);
  // A canvas has no class of its own in the toolkit's eyes.
  auto* canvas = className == "QWidget" ? dynamic_cast<Canvas*>(object) : nullptr;
  return canvas == nullptr ? nullptr : new CanvasAccess(*canvas);
}

}  // namespace

void InstallAccess() { QAccessible::installFactory(AccessOf); }

}  // namespace pawnfield
