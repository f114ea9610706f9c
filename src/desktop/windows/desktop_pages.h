// Pages on this desktop: the manual's in their own window, those of the web in the system's browser.
#pragma once

#include <QPointer>
#include <QString>

#include "desktop/windows/manual_window.h"
#include "platform/ports.h"

namespace pawnfield {

class DesktopPages : public HelpPages {
 public:
  explicit DesktopPages(QString manualFolder) : folder_(std::move(manualFolder)) {}
  ~DesktopPages() override { delete window_.data(); }
  DesktopPages(const DesktopPages&) = delete;
  DesktopPages& operator=(const DesktopPages&) = delete;
  bool Open(const std::string& address) override;
  // Null until a page of the manual was opened.
  ManualWindow* Window() { return window_; }

 private:
  QString folder_;
  // Goes with the modal window that it stands above, if that goes first.
  QPointer<ManualWindow> window_;
};

// The installed manual, or else the one that was made with the program.
QString ManualFolder();

}  // namespace pawnfield
