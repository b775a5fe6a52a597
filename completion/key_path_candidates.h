#pragma once

// The key paths that a document has to offer.

#include <string_view>
#include <vector>

#include "completion/candidate_list.h"
#include "completion/reachable_steps.h"
#include "json/document.h"

namespace kovalt {

/// The ways to go on from the key path `word`, walked from any of `roots`, by one step. A candidate is the whole path;
/// one that can go on itself ends in ".". Of an array with very many objects only the keys to select by are offered,
/// and such a candidate ends in "=".
///
/// Not offered: what no key path reaches (names and values that hold a ".", an object after one that the selection
/// stops at, a second member of the same name), empty names, and names and values that a terminal cannot show.
CandidateList keyPathCandidates(const std::vector<const Value*>& roots, std::string_view word, KeyPathUse use);

/// The elements of the array that `keyPath` names; none where it names no array.
std::vector<const Value*> arrayElements(const Value& root, std::string_view keyPath);

}  // namespace kovalt
