#pragma once

// The run of a parsed command line.

#include "app/tool_context.h"

namespace kovalt {

/// Loads the document, applies all additions and then all removals, displays and saves it and prints the reads, in this
/// order whatever the order of the options. Returns false only if the file cannot be opened for saving.
bool run(const ToolContext& context);

}  // namespace kovalt
