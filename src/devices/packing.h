// Numbers as bytes of a text, and Base64: what the wireless and the serial paths share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace pawnfield {

// Machine is low byte first, Network high byte first.
enum class ByteOrder { Machine = 0, Network = 1 };

// The four bytes of the value.
std::string PackLong(std::int32_t value, ByteOrder order);
// The same in eight, the last four 0.
std::string PackLongPadded(std::int32_t value, ByteOrder order);
// The number of the four (two) bytes at pos, which counts from 1 (0 means 1), and moves pos behind them; 0 without
// moving pos when they lie past the end.
std::int32_t GetLong(const std::string& text, std::size_t& pos, ByteOrder order);
std::int16_t GetShort(const std::string& text, std::size_t& pos, ByteOrder order);

// Standard Base64 in lines of 72 characters, without a line end at the very end.
std::string MyEncode(const std::string& text);

}  // namespace pawnfield
