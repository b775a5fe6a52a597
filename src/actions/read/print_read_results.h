#pragma once

// The output of all reads of a call.

#include <memory>
#include <vector>

#include "actions/read/read_action.h"
#include "json/document.h"

namespace kovalt {

/// Runs every action on the root of `document`, in order, and prints on standard output the bare text of a single read,
/// or, for several, one object with a string member for each read that found something. A single read that found
/// nothing prints nothing there. Returns whether there was any action. The object is made in the document's pool.
bool printReadResults(const std::vector<std::unique_ptr<ReadAction>>& actions, Document& document);

}  // namespace kovalt
