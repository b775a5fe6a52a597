#pragma once

// The two ways in which the tool's own code ends a call early. A failed assertion of RapidJSON aborts a call too, and
// so do the exceptions of std::stoi and std::bad_alloc, which nothing catches.

namespace kovalt {

/// Exits with status 1, after the caller has reported why. Nothing more is printed or saved.
[[noreturn]] void exitWithFailure();

/// Aborts without a report, also where RapidJSON lacks memory. Nothing more is printed or saved.
[[noreturn]] void abortProcess();

}  // namespace kovalt
