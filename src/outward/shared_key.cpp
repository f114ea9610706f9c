#include "outward/shared_key.h"

#include <utility>

#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "platform/errors.h"
#include "show/show.h"

namespace pawnfield {

bool IsKeypadMode(const Show& show) { return AreKeypads(show.state.SerialComm); }

bool PublishesPlayers(const Show& show) { return show.state.SerialComm == InterfaceCode::PublishingKeypads; }

void WriteSharedKey(Show& show, const std::string& name, const std::string& text) {
  std::vector<Setting>& waiting = show.SharedKeyWaiting;
  std::erase_if(waiting, [&](const Setting& setting) { return setting.Key == name; });
  const auto written = show.SharedKeyWritten.find(name);
  if (written != show.SharedKeyWritten.end() && written->second == text) return;
  waiting.push_back({name, text});
  if (!show.frmAlwaysLoaded.tmrSharedKey.Enabled) show.frmAlwaysLoaded.tmrSharedKey.Enabled = true;
}

void FlushSharedKey(Show& show) {
  show.frmAlwaysLoaded.tmrSharedKey.Enabled = false;
  if (show.SharedKeyWaiting.empty()) return;
  try {
    show.platform.settings.SaveSettings("PadBridge", "Settings", show.SharedKeyWaiting);
    for (const auto& [name, text] : show.SharedKeyWaiting) show.SharedKeyWritten[name] = text;
    show.SharedKeyWaiting.clear();
    show.SharedKeyFails = false;
  } catch (const RuntimeError& error) {
    // A ring-in must not wait for the operator to read the same message again.
    if (!std::exchange(show.SharedKeyFails, true)) {
      ReportError(show.platform.dialogs, error, "frmMain", "WriteSharedKey");
    }
  }
}

void SendKeyPress(Show& show, bool on) { WriteSharedKey(show, "sendkeypress", on ? "1" : "0"); }

void SendKeyPressInRingIn(Show& show, bool on) {
  if (show.state.Nature().RingIn && IsKeypadMode(show)) SendKeyPress(show, on);
}

void PublishScore(Show& show, const std::string& name, int player) {
  if (PublishesPlayers(show)) WriteSharedKey(show, name, show.frmMain.Score(player).Caption);
}

}  // namespace pawnfield
