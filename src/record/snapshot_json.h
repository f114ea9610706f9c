// A snapshot as JSON and back.
#pragma once

#include <optional>

#include "data/snapshot.h"
#include "record/json.h"

namespace pawnfield {

Json JsonOf(const TriviaQuestion& question);
// A blank one where it is none.
TriviaQuestion QuestionOf(const Json& json);

Json JsonOf(const Snapshot& snapshot);
// Members that are missing keep their defaults, and unknown ones are passed over. Nothing where a value is one that no
// show can stand at.
std::optional<Snapshot> SnapshotOf(const Json& json);

}  // namespace pawnfield
