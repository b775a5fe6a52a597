#pragma once

// The two functions of a fuzz target, under the names by which the fuzzer calls them.

#include <cstddef>
#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming)

/// Called once, before standard output and standard error are sent away.
extern "C" int LLVMFuzzerInitialize(int* argumentCount, char*** arguments);

/// Tries one input; ends the process where it shows a defect.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// NOLINTEND(readability-identifier-naming)
