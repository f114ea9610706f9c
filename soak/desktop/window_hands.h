// The long show's hands on the real windows: mouse and keys, and a transceiver that is handed its reports.
#pragma once

#include "platform/sim/sim_hid.h"
#include "show_driver.h"
#include "soak/operator.h"

namespace pawnfield {

class WindowHands : public Hands {
 public:
  explicit WindowHands(ShowDriver& driver);
  ~WindowHands() override;

  bool Press(Control& control) override;
  bool Choose(ComboBox& list, const std::string& item) override;
  bool Visit(Control& opener) override;
  void Type(char key) override;
  void PressRemote(int remote) override;
  void Wait(int ms) override;

 private:
  ShowDriver& driver_;
  SimHid hid_;
};

}  // namespace pawnfield
