// Small routines of placing that several forms share.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

enum class Extent { Keep, Copy };

// Moves a control to where another stands, and with Extent::Copy makes it as large.
inline void MoveLike(Control& target, const Control& source, Extent extent) {
  target.Left = source.Left;
  target.Top = source.Top;
  if (extent == Extent::Keep) return;
  target.Width = source.Width;
  target.Height = source.Height;
}

}  // namespace pawnfield
