// The window of one form: shows and hides with it, and asks it before it closes.
#pragma once

#include <QMainWindow>
#include <memory>

#include "desktop/system/form_windows.h"
#include "desktop/windows/binder.h"
#include "platform/controls.h"

class QPushButton;
class QVBoxLayout;

namespace pawnfield {

// The window of a dialog: a title and a box to close it by.
inline constexpr Qt::WindowFlags kDialog = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

// Fills the window with the form file's widgets.
template <typename Design>
void SetUp(QMainWindow& window) {
  auto* content = new QWidget(&window);
  Design design;
  design.setupUi(content);
  content->setObjectName("pnlContent");
  window.setCentralWidget(content);
}

// For a window that is laid out in code: its content as a column to fill, `edge` pixels inside the window's own edge.
QVBoxLayout* MakeContent(QMainWindow& window, int edge, int spacing = 12);
QPushButton* MakeButton(const QString& name, const QSize& least);

class FormWindow : public QMainWindow, public Observer {
 public:
  FormWindow(Form& form, FormWindows& windows, Qt::WindowFlags flags = Qt::Window);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  void Changed(Control& control, PropertyId id) override;
  // Null until the widgets have been made.
  Binder* Bindings() { return binder_.get(); }

 protected:
  // Called once the window has its widgets; binds them and takes over what the form says already.
  void BindForm();
  virtual void ShowForm();
  // In a dialog Enter presses the button that has the focus, or else the default one, and Escape closes.
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  // A modal form that is minimised would hold the show out of sight; it is back at once.
  void changeEvent(QEvent* event) override;
  Form& form_;

 private:
  // Null when the form has none.
  QPushButton* DefaultButton() const;

  FormWindows& windows_;
  std::unique_ptr<Binder> binder_;
};

}  // namespace pawnfield
