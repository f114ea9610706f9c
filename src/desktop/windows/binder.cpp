#include "desktop/windows/binder.h"

#include <QAction>
#include <QMenu>

#include "desktop/painting/canvas.h"
#include "desktop/windows/bindings.h"

namespace pawnfield {

namespace {

QAction* FindAction(const QWidget& window, const QString& name) {
  if (auto* menu = window.findChild<QMenu*>(name)) return menu->menuAction();
  return window.findChild<QAction*>(name);
}

// The form file's own widgets; those that the toolkit makes inside them have no name or one that begins with "qt_".
bool IsFormWidget(const QWidget& widget, const QWidget& window) {
  const QString name = widget.objectName();
  if (name.isEmpty() || name.startsWith("qt_") || name.startsWith("pnl")) return false;
  for (const QWidget* parent = widget.parentWidget(); parent != nullptr && parent != &window;
       parent = parent->parentWidget()) {
    if (parent->inherits("QComboBox") || parent->inherits("QAbstractItemView") || parent->inherits("QTabBar"))
      return false;
  }
  return true;
}

}  // namespace

QString WidgetName(const std::string& controlName) {
  QString name = QString::fromStdString(controlName);
  name.replace('(', '_');
  name.remove(')');
  return name;
}

Binder::Binder(Form& form, QWidget& window, PictureCache& pictures)
    : form_(form), window_(window), pictures_(pictures) {
  for (Control* control : form.Controls()) {
    const QString name = WidgetName(control->Name());
    if (control->Kind() == ControlKind::Menu) {
      QAction* action = FindAction(window, name);
      if (action == nullptr) continue;
      bindings_.push_back(MakeActionBinding(static_cast<Menu&>(*control), *action));
      bound_.insert(control->Name());
    } else if (auto* widget = window.findChild<QWidget*>(name)) {
      Bind(*control, *widget);
    }
  }
}

Binder::~Binder() = default;

void Binder::Bind(Control& control, QWidget& widget) {
  auto binding = MakeBinding(control, widget, pictures_);
  if (!binding) return;
  bindings_.push_back(std::move(binding));
  bound_.insert(control.Name());
}

void Binder::Hold(const std::vector<std::string>& names) { held_.insert(names.begin(), names.end()); }

bool Binder::IsShownSomewhere(const Control& control) const {
  if (control.Kind() == ControlKind::Timer) return true;
  if (bound_.count(control.Name()) != 0 || held_.count(control.Name()) != 0) return true;
  for (const Canvas* canvas : canvases_) {
    if (canvas->Holds(control)) return true;
  }
  return false;
}

std::vector<std::string> Binder::UnboundControls() const {
  std::vector<std::string> names;
  for (const Control* control : form_.Controls()) {
    if (!IsShownSomewhere(*control)) names.push_back(control->Name());
  }
  return names;
}

std::vector<std::string> Binder::UnboundWidgets() const {
  std::set<QString> known{QString::fromStdString(form_.Name())};
  for (const std::string& name : bound_) known.insert(WidgetName(name));
  std::vector<std::string> names;
  for (const QWidget* widget : window_.findChildren<QWidget*>()) {
    if (IsFormWidget(*widget, window_) && known.count(widget->objectName()) == 0) {
      names.push_back(widget->objectName().toStdString());
    }
  }
  return names;
}

}  // namespace pawnfield
