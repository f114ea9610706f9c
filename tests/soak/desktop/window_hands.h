// The long show's hands on the real windows: mouse and keys, and a transceiver that is handed its reports.
#pragma once

#include "handed_transceiver.h"
#include "show_driver.h"
#include "soak/operator.h"

namespace pawnfield {

class WindowHands : public Hands {
 public:
  explicit WindowHands(ShowDriver& driver) : driver_(driver), transceiver_(driver.TheShow()) {}

  bool Press(Control& control) override;
  bool Choose(ComboBox& list, const std::string& item) override;
  bool Visit(Control& opener) override;
  void Type(char key) override;
  void PressRemote(int remote) override { transceiver_.Press(remote); }
  void Wait(int ms) override { driver_.Pause(ms); }

 private:
  ShowDriver& driver_;
  HandedTransceiver transceiver_;
};

}  // namespace pawnfield
