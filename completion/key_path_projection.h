#pragma once

// The parts of a document that the candidates for a key path depend on, so that a completion loads nothing else.
// Mirrors key_path_candidates.h: change both or neither.

#include <string_view>

#include "completion/reachable_steps.h"
#include "json/load/projection.h"

namespace kovalt {

/// Adds to `projection` everything that `keyPathCandidates` reads for `word` and roots at `from`: the path up to the
/// last step, the candidates there, and enough of their values to see whether more steps can follow.
void addCandidates(Projection& projection, Projection::Place from, std::string_view word, KeyPathUse use);

}  // namespace kovalt
