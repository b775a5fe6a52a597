#pragma once

// The two ways in which the tool ends a call before its time. Nothing is printed and no file is written after either.

namespace kovalt {

/// Ends the process with status 1, after a report.
[[noreturn]] void endWithFailure();

/// Ends the process abnormally, without a report.
[[noreturn]] void endAbnormally();

}  // namespace kovalt
