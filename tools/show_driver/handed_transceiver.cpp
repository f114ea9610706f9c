#include "handed_transceiver.h"

#include <functional>
#include <memory>

#include "controllers/ring_in.h"
#include "forms/main_form.h"
#include "platform/errors.h"

namespace pawnfield {

HandedTransceiver::HandedTransceiver(Show& show) : show_(show), hid_(show.platform.clock) {
  hid_.PlugTransceiver(kTransceiverShort);
  show.dgTransceiver = std::make_unique<Transceiver>(
      hid_, show.platform.clock, [&show](const TransceiverData& data) { dgTransceiver_OnButtonPressed(show, data); },
      [&show](const std::function<void()>& poll, const std::string&, const std::string&) {
        RunGuarded(show.platform.dialogs, poll, show.frmMain.Name(), "dgTransceiver_OnButtonPressed");
      },
      [&show] { show.presses.TransceiverLost = true; });
}

HandedTransceiver::~HandedTransceiver() { show_.dgTransceiver.reset(); }

void HandedTransceiver::Hand(const std::string& report) {
  hid_.Writes.clear();
  hid_.Reports.push_back(report);
}

}  // namespace pawnfield
