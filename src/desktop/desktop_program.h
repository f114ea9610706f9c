// The whole program on this desktop: the platform, the show and the forms' windows.
#pragma once

#include <memory>
#include <vector>

#include "desktop/desktop_platform.h"
#include "show/show.h"

namespace pawnfield {

class AudienceWindow;
class ConsoleWindow;
class FormWindow;

class DesktopProgram {
 public:
  explicit DesktopProgram(const DesktopPlaces& places = {});
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  Show& TheShow() { return show_; }
  ConsoleWindow& Console();
  AudienceWindow& Audience();
  // What shows the manual.
  DesktopPages& ManualPages() { return desktop_.pages; }
  // All windows, for what goes over every form.
  std::vector<FormWindow*> Windows();

 private:
  DesktopPlatform desktop_;
  Show show_;
  // Made with the program, so that who uses the program needs no window's header.
  struct AllWindows;
  std::unique_ptr<AllWindows> windows_;
};

// Its name and version, for the desktop and the command line.
void NameApplication();
// What the application object needs before the first window: fonts, colours, number format.
void PrepareApplication();

}  // namespace pawnfield
