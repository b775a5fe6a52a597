// Part of the program where it counts its lines: keeps the counts of a call that ends by std::abort, too.

#include <csignal>

extern "C" void __gcov_dump();  // NOLINT(bugprone-reserved-identifier,cert-dcl*,readability-identifier-naming)

namespace {

void dump(int /*signal*/) { __gcov_dump(); }

// std::abort ends the process by the same signal again once the handler has returned.
[[maybe_unused]] const auto previous = std::signal(SIGABRT, dump);

}  // namespace
