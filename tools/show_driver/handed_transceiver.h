// A transceiver that is handed its reports, in the place of the one that the show found or missed. The show must
// outlive it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "controllers/ring_in.h"
#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "platform/errors.h"
#include "show/show.h"
#include "sim/sim_hid.h"

namespace pawnfield {

class HandedTransceiver {
 public:
  explicit HandedTransceiver(Show& show) : show_(show), hid_(show.platform.clock) {
    hid_.PlugTransceiver(kTransceiverShort);
    show.dgTransceiver = std::make_unique<Transceiver>(
        hid_, show.platform.clock, [&show](const TransceiverData& data) { dgTransceiver_OnButtonPressed(show, data); },
        [&show](const std::function<void()>& poll, const std::string&, const std::string&) {
          RunGuarded(show.platform.dialogs, poll, show.frmMain.Name(), "dgTransceiver_OnButtonPressed");
        });
  }
  ~HandedTransceiver() { show_.dgTransceiver.reset(); }
  HandedTransceiver(const HandedTransceiver&) = delete;
  HandedTransceiver& operator=(const HandedTransceiver&) = delete;

  void Press(int remote) { Hand({'\0', '\0', static_cast<char>(remote)}); }
  void Hand(const std::string& report) {
    hid_.Writes.clear();
    hid_.Reports.push_back(report);
  }
  void Pull() { hid_.Pull(); }

 private:
  Show& show_;
  SimHid hid_;
};

}  // namespace pawnfield
