#pragma once

// The ends of the process that are part of what the tool does, as exceptions.

namespace kovalt::fuzz {

/// An end that the tool promises for some calls.
enum class End {
  typeClash,    ///< std::exit with status 1: two values of different types meet in a merge.
  noObject,     ///< The JSON library's assertion: a merge or a removal works on a value that is no object.
  skippedStep,  ///< std::abort: objects are to be cleared along a path that skipped a step.
};

/// What is thrown at an end.
struct EarlyEnd {
  End end;
};

/// Each throws the end that it stands for. Any other status or condition is a defect, and ends the process.
[[noreturn]] void throwForExit(int status);
[[noreturn]] void throwForAbort();
[[noreturn]] void throwForAssertion(const char* condition);

}  // namespace kovalt::fuzz
