// The monitors and what the desktop does with whole windows.
#pragma once

#include <memory>
#include <optional>

#include "desktop/system/bus_finder.h"
#include "desktop/system/screens.h"
#include "desktop/system/sleep_inhibitor.h"
#include "platform/ports.h"

class QWidget;

namespace pawnfield {

class QtDisplays : public Displays {
 public:
  using WindowLookup = std::function<QWidget*(Form&)>;
  // The lookup gives a form's window, or null.
  QtDisplays(Screens& screens, WindowLookup windowOf) : screens_(screens), windowOf_(std::move(windowOf)) {}
  std::vector<MonitorInfo> Enumerate() const override;
  void OnChanged(std::function<void()> changed) override;
  void SetTopMost(Form& form, bool onTop) override;
  void RoundWindow(Form& form, int radius) override;
  void KeepAwake(bool awake) override;
  void TryAwake(std::function<void(const AwakeAnswer& answer)> then) override;
  bool KeepsAwake() const override { return !inhibitor_ || inhibitor_->HoldsSaver(); }

 private:
  Screens& screens_;
  WindowLookup windowOf_;
  // Makes the inhibitor as soon as the buses are found, and has it do what was asked for meanwhile.
  void FindBuses();
  void Try();

  bool awake_ = false;
  std::function<void(const AwakeAnswer& answer)> trial_;
  std::optional<SleepInhibitor> inhibitor_;
  // The buses are looked for when the first hold is asked for, with the windows up.
  std::unique_ptr<BusFinder> buses_;
};

}  // namespace pawnfield
