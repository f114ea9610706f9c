// The window of one form: shows and hides with it, and asks it before it closes.
#pragma once

#include <QMainWindow>
#include <memory>

#include "platform/controls.h"
#include "platform/desktop/binder.h"
#include "platform/desktop/form_windows.h"

namespace pawnfield {

class FormWindow : public QMainWindow, public Mirror {
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
  void closeEvent(QCloseEvent* event) override;
  Form& form_;

 private:
  FormWindows& windows_;
  std::unique_ptr<Binder> binder_;
};

}  // namespace pawnfield
