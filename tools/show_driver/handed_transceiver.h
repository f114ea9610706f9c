// A transceiver that is handed its reports, in the place of the one that the show found or missed. The show must
// outlive it.
#pragma once

#include <string>

#include "devices/transceiver.h"
#include "show/show.h"
#include "sim/sim_hid.h"

namespace pawnfield {

class HandedTransceiver {
 public:
  explicit HandedTransceiver(Show& show);
  ~HandedTransceiver();
  HandedTransceiver(const HandedTransceiver&) = delete;
  HandedTransceiver& operator=(const HandedTransceiver&) = delete;

  void Press(int remote) { Hand({'\0', '\0', static_cast<char>(remote)}); }
  void Hand(const std::string& report);
  void Pull() { hid_.Pull(); }

 private:
  Show& show_;
  SimHid hid_;
};

}  // namespace pawnfield
