#pragma once

// The documented early exits of the tool, as exceptions.

namespace kovalt::fuzz {

enum class Exit {
  typeClash,    ///< Status 1: a merge meets two values of different types.
  notAnObject,  ///< An assertion of RapidJSON: a merge or removal works on a value that is not an object.
  skippedStep,  ///< An abort: a removal clears objects along a path with a skipped step.
};

/// Thrown instead of an early exit.
struct EarlyExit {
  Exit kind;
};

/// Throws for a failed assertion, whose text is `condition`. Aborts unless it is the one that is documented.
[[noreturn]] void throwForAssertion(const char* condition);

}  // namespace kovalt::fuzz
