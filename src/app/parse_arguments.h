#pragma once

// The command-line parser.

#include "app/tool_context.h"

namespace kovalt {

/// Fills `context` with what the arguments ask for; the first of them, the program's own name, is skipped. No file is
/// touched. Returns false after printing one line on standard output at the first argument that is wrong, and silently
/// where only the program's name is given; without even that there is nothing to parse, and the result is true.
bool parseArguments(ToolContext& context, int argumentCount, const char* const* arguments);

}  // namespace kovalt
