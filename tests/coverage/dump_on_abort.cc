// Linked into the program for coverage, to keep the counts of calls that abort.

#include <csignal>

extern "C" void __gcov_dump();  // NOLINT(bugprone-reserved-identifier,cert-dcl*,readability-identifier-naming)

namespace {

void dump(int /*signal*/) { __gcov_dump(); }

// When the handler returns, std::abort kills the process with the same signal.
[[maybe_unused]] const auto previous = std::signal(SIGABRT, dump);

}  // namespace
