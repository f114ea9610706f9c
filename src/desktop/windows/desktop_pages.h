// Pages on this desktop: the manual's in their own window, those of the web in the system's browser.
#pragma once

#include <QString>
#include <memory>

#include "desktop/windows/manual_window.h"
#include "platform/ports.h"

namespace pawnfield {

class DesktopPages : public HelpPages {
 public:
  explicit DesktopPages(QString manualFolder) : folder_(std::move(manualFolder)) {}
  bool Open(const std::string& address) override;
  // Null until a page of the manual was opened.
  ManualWindow* Window() { return window_.get(); }

 private:
  QString folder_;
  std::unique_ptr<ManualWindow> window_;
};

// The installed manual, or else the one that was made with the program.
QString ManualFolder();

}  // namespace pawnfield
