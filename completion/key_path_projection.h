#pragma once

// How little of a document its candidates for a key path need.

#include <string_view>

#include "completion/reachable_steps.h"
#include "json/load/projection.h"

namespace kovalt {

/// Adds to `projection` what `keyPathCandidates` looks at for `word` and values at `from`: the way to the last step,
/// and there as much as tells what the candidates are and which of them can go on.
void addCandidates(Projection& projection, Projection::Place from, std::string_view word, KeyPathUse use);

}  // namespace kovalt
