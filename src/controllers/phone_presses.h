// A phone's press on its way to AcceptRingIn: its gates, and the wait for those that may have been earlier.
#pragma once

#include <cstdint>

namespace pawnfield {

struct Show;

// The page's button went down at that time of its own clock.
void TakePhonePress(Show& show, std::uint64_t page, std::int64_t pressedUs, std::int64_t arrivedUs);
// Notes when the question opened. After each event.
void NoteTheQuestion(Show& show);
// Everybody who may have been earlier has been heard, or has had his time.
void tmrWeigh_Timer(Show& show);

}  // namespace pawnfield
