#pragma once

// The output of all reads of a call.

#include <memory>
#include <vector>

#include "actions/read/read_action.h"
#include "json/document.h"

namespace kovalt {

/// Runs all actions on the root of `document`, in order, and prints on standard output: for a single action its bare
/// text, or nothing if it found nothing; for several, one object with a string member for each that found something,
/// which is allocated from the document's pool. Returns whether there are any actions.
bool printReadResults(const std::vector<std::unique_ptr<ReadAction>>& actions, Document& document);

}  // namespace kovalt
