#pragma once

// The candidates for a key path, from a document. key_path_projection.h loads the parts of the document that are read
// here: change both or neither.

#include <string_view>
#include <vector>

#include "completion/candidate_list.h"
#include "completion/reachable_steps.h"
#include "json/document.h"

namespace kovalt {

/// Completes the last step of the key path `word`, walked from each of `roots`. A candidate is the whole path. It ends
/// in "." if more steps can follow. For an array with too many selections to list, the candidates are the keys to
/// select by, and end in "=".
///
/// Not offered: members and elements that no key path reaches (a "." in the name or value, a "=" in the name where
/// steps select, an element after one that stops the selection, a second member of the same name), members with an
/// empty name, and text that a terminal cannot show.
CandidateList keyPathCandidates(const std::vector<const Value*>& roots, std::string_view word, KeyPathUse use);

/// Returns the elements of the array that `keyPath` names, or nothing if it does not name an array.
std::vector<const Value*> arrayElements(const Value& root, std::string_view keyPath);

}  // namespace kovalt
