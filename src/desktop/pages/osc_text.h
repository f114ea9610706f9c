// Packets of OSC, the messages of show-control systems, from and to the words of the control interface.
#pragma once

#include <optional>
#include <string>

#include "platform/pages.h"

namespace pawnfield {

struct OscRequest {
  // As a control is asked for, "claim C2".
  std::string Text, Token;
};

// "/pawnfield/claim" with the token and "C2"; nothing for a packet of another form.
std::optional<OscRequest> ReadOsc(const std::string& packet);
std::string WriteOsc(const OscMessage& message);
// "/pawnfield/answer", the status and its words.
std::string OscAnswer(int status, const std::string& text);

}  // namespace pawnfield
