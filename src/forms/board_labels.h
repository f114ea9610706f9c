// The labels of a board's columns and rows, the same on the console and on the audience form, in their order.
#pragma once

#include <array>

#include "platform/controls.h"

namespace pawnfield {

template <typename BoardForm>
std::array<Image*, 6> ColumnLabels(BoardForm& form) {
  return {&form.imgA, &form.imgB, &form.imgC, &form.imgD, &form.imgE, &form.imgF};
}

template <typename BoardForm>
std::array<Image*, 6> RowLabels(BoardForm& form) {
  return {&form.img1, &form.img2, &form.img3, &form.img4, &form.img5, &form.img6};
}

}  // namespace pawnfield
