#pragma once

// Whole lines on the two standard streams. Each is flushed as it ends, so that both streams sent to one place show
// their lines in the order in which they were printed. Failures of a stream are not reported: there is nowhere to say
// so.

#include <string_view>

namespace kovalt {

/// Prints `text` and an end of line on standard output.
void printLine(std::string_view text);

/// Prints `text` and an end of line on standard error.
void reportLine(std::string_view text);

}  // namespace kovalt
