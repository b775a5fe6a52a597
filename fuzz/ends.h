#pragma once

// The ends of the process that are part of what the tool does, as exceptions.

namespace kovalt::fuzz {

/// An end that the tool promises for some calls.
enum class End {
  typeClash,    ///< Status 1: two values of different types meet in a merge.
  noObject,     ///< An assertion of RapidJSON: a merge or a removal works on a value that is no object.
  skippedStep,  ///< An abnormal end: objects are to be cleared along a path that skipped a step.
};

/// What is thrown at an end.
struct EarlyEnd {
  End end;
};

/// Throws the end that an assertion stands for. Any condition but the expected one is a defect, and ends the process.
[[noreturn]] void throwForAssertion(const char* condition);

}  // namespace kovalt::fuzz
