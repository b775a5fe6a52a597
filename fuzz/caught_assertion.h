#pragma once

// Included before the sources of the tool whose assertions of RapidJSON are part of what the tool does, so that a fuzz
// target goes on after such an end, with all memory released, and can tell it from a crash.

#include "fuzz/ends.h"

/// What RapidJSON leaves to its users to define.
#define RAPIDJSON_ASSERT(condition) \
  (static_cast<bool>(condition) ? static_cast<void>(0) : kovalt::fuzz::throwForAssertion(#condition))
