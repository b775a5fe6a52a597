#pragma once

// Included before those sources of the tool in which a failed assertion of RapidJSON is documented behaviour. The
// assertion then throws, so that a fuzz target can continue without leaks and distinguish it from a crash.

#include "fuzz/early_exits.h"

/// Replaces the assertion of RapidJSON.
#define RAPIDJSON_ASSERT(condition) \
  (static_cast<bool>(condition) ? static_cast<void>(0) : kovalt::fuzz::throwForAssertion(#condition))
