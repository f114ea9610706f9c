// The windows of the small forms: loading, splash, the wait for system files, game in progress, game types.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct LoadingForm;
struct SplashForm;
struct GameLoadingForm;
struct GameInProgressForm;
struct GameTypeHelpForm;

class LoadingWindow : public FormWindow {
 public:
  LoadingWindow(LoadingForm& form, FormWindows& windows);
};

class SplashWindow : public FormWindow {
 public:
  SplashWindow(SplashForm& form, FormWindows& windows);

 protected:
  void ShowForm() override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
};

class GameLoadingWindow : public FormWindow {
 public:
  GameLoadingWindow(GameLoadingForm& form, FormWindows& windows);
};

class GameInProgressWindow : public FormWindow {
 public:
  GameInProgressWindow(GameInProgressForm& form, FormWindows& windows);
};

class GameTypeHelpWindow : public FormWindow {
 public:
  GameTypeHelpWindow(GameTypeHelpForm& form, FormWindows& windows);
};

}  // namespace pawnfield
