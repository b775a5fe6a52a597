#pragma once

// The run of a parsed command line.

#include "app/tool_context.h"

namespace kovalt {

/// Loads the document, applies all edits and then all removals, displays it, saves it and prints the reads, in this
/// order whatever the order of the options. Returns false only when the file to save cannot be opened for writing.
bool run(const ToolContext& context);

}  // namespace kovalt
