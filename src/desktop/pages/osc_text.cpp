#include "desktop/pages/osc_text.h"

#include <lo/lo_lowlevel.h>

#include <memory>
#include <string_view>

namespace pawnfield {

namespace {

constexpr std::string_view kRoot = "/pawnfield/";

struct FreeMessage {
  void operator()(void* message) const { lo_message_free(static_cast<lo_message>(message)); }
};
using Message = std::unique_ptr<void, FreeMessage>;

lo_message Raw(const Message& message) { return static_cast<lo_message>(message.get()); }

std::string Packet(const Message& message, const std::string& address) {
  std::string packet(lo_message_length(Raw(message), address.c_str()), '\0');
  std::size_t size = packet.size();
  lo_message_serialise(Raw(message), address.c_str(), packet.data(), &size);
  packet.resize(size);
  return packet;
}

// A text or a whole number; nothing for another type.
std::optional<std::string> Argument(const Message& message, int at) {
  const char type = lo_message_get_types(Raw(message))[at];
  const lo_arg* argument = lo_message_get_argv(Raw(message))[at];
  if (type == LO_STRING) return std::string(&argument->s);
  if (type == LO_INT32) return std::to_string(argument->i32);
  return std::nullopt;
}

}  // namespace

std::optional<OscRequest> ReadOsc(const std::string& packet) {
  std::string bytes = packet;
  const std::string_view path(bytes.c_str());
  if (!path.starts_with(kRoot) || path.size() >= bytes.size()) return std::nullopt;
  int result = 0;
  const Message message(lo_message_deserialise(bytes.data(), bytes.size(), &result));
  if (!message || result != 0) return std::nullopt;
  const int count = lo_message_get_argc(Raw(message));
  if (count < 1 || count > 2) return std::nullopt;
  const std::optional<std::string> token = Argument(message, 0);
  const std::optional<std::string> argument = count == 2 ? Argument(message, 1) : std::string();
  if (!token || !argument) return std::nullopt;
  std::string text(path.substr(kRoot.size()));
  if (count == 2) text += " " + *argument;
  return OscRequest{text, *token};
}

std::string WriteOsc(const OscMessage& message) {
  const Message packed(lo_message_new());
  for (const int number : message.Numbers) lo_message_add_int32(Raw(packed), number);
  return Packet(packed, message.Address);
}

std::string OscAnswer(int status, const std::string& text) {
  const Message packed(lo_message_new());
  lo_message_add_int32(Raw(packed), status);
  lo_message_add_string(Raw(packed), text.c_str());
  return Packet(packed, std::string(kRoot) + "answer");
}

}  // namespace pawnfield
