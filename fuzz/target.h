#pragma once

// The two functions of a fuzz target, under the names that libFuzzer calls.

#include <cstddef>
#include <cstdint>

// NOLINTBEGIN(readability-identifier-naming)

/// Called once, before standard output and standard error are redirected.
extern "C" int LLVMFuzzerInitialize(int* argumentCount, char*** arguments);

/// Tries one input. Aborts if it shows a defect.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// NOLINTEND(readability-identifier-naming)
