#include "controllers/press_trial.h"

#include "show/show.h"

namespace pawnfield {

bool TakesForTrial(Show& show, const Press& press, int number) {
  if (!show.presses.OnTried) return false;
  // A copy, as what takes the press may end the trial.
  const auto take = show.presses.OnTried;
  take({press, number});
  return true;
}

}  // namespace pawnfield
