#pragma once

// Whole lines on the two standard streams. Each line is flushed when it is complete, so that lines of both streams,
// redirected to one file, appear in the order in which they were printed. Write errors are ignored and do not
// change the exit status.

#include <string_view>

namespace kovalt {

/// Prints `text` and an end of line on standard output.
void printLine(std::string_view text);

/// Prints `text` and an end of line on standard error.
void reportLine(std::string_view text);

}  // namespace kovalt
