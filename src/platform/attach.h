// Ties a control's events to handlers that are free functions of the owner, "btnStart_Click(show)".
#pragma once

#include "platform/controls.h"

namespace pawnfield {

template <typename Owner, typename Handler>
void OnClick(Owner& owner, Control& control, Handler handler) {
  control.OnClick = [&owner, handler] { handler(owner); };
}

template <typename Owner, typename Handler>
void OnTimer(Owner& owner, Timer& timer, Handler handler) {
  timer.OnTimer = [&owner, handler] { handler(owner); };
}

// The handler is given the member's index, counted from 0.
template <typename Owner, typename T, std::size_t N, typename Handler>
void OnClick(Owner& owner, ControlArray<T, N>& controls, Handler handler) {
  for (std::size_t i = 0; i < N; ++i) {
    controls[i].OnClick = [&owner, handler, i] { handler(owner, static_cast<int>(i)); };
  }
}

}  // namespace pawnfield
