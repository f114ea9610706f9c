// The window of the audience screen: shows frmFSMain's controls under the name of frmSS, full-screen on the second
// monitor while frmSS is loaded, and never takes the focus from the console.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "desktop/painting/board_items.h"
#include "desktop/system/screens.h"
#include "desktop/windows/form_window.h"

namespace pawnfield {

class FSMainForm;
class KeyRelay;
class MpvVideo;
struct SecondScreenForm;

class AudienceWindow : public FormWindow {
 public:
  AudienceWindow(FSMainForm& form, SecondScreenForm& copy, FormWindows& windows, PictureCache& pictures,
                 Screens& screens, MpvVideo& video);
  ~AudienceWindow() override;
  Canvas& Screen() { return *screen_; }
  // A desktop can give this window the keyboard although it wants none: the console gets each key then.
  void HandKeysTo(QWidget& console);

 protected:
  void Changed(Control& control, PropertyId id) override;
  void ShowForm() override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  static ItemStyles Styles(FSMainForm& form);
  void Fill(FSMainForm& form);

  // Fills its monitor or hides, as the monitors and frmSS have it.
  void Place();
  // The same, with all its tries before it.
  void PlaceAnew();
  // For sessions where a window has no place but a screen.
  void GoTo(QScreen& target);
  // Looks whether the desktop has put the window where it was to go.
  void AwaitPlace();
  void CheckPlace();
  // A compositor has moved it, as for a new scale, which changes no monitor's place.
  void Moved();
  // Gone before the toolkit would move it over the console.
  void ScreenRemoved(const QScreen* screen);

  SecondScreenForm& copy_;
  FormWindows& windows_;
  Screens& screens_;
  Canvas* screen_ = nullptr;
  std::unique_ptr<KeyRelay> relay_;
  QTimer placed_;
  int looksLeft_ = 0;
  int triesLeft_ = 0;
  int againMs_ = 0;
  // Since it was last sent to a screen.
  QElapsedTimer sent_;
};

}  // namespace pawnfield
