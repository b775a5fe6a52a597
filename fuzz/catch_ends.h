#pragma once

// Put in front of the sources that end the process, so that a fuzz target goes on behind such an end, with all memory
// released, and can tell it from a crash. Replacing the functions at link time does not do: they are declared noexcept,
// so no exception comes out of their calls.

#include <cstdlib>

#include "fuzz/ends.h"

namespace std {  // NOLINT(cert-dcl58-cpp): the calls name this namespace.
using kovalt::fuzz::throwForAbort;
using kovalt::fuzz::throwForExit;
}  // namespace std

#define exit throwForExit
#define abort throwForAbort
#define RAPIDJSON_ASSERT(condition) \
  (static_cast<bool>(condition) ? static_cast<void>(0) : kovalt::fuzz::throwForAssertion(#condition))
