#pragma once

// Splits an input into the parts that a target needs. Inputs are text, so that people can read the saved ones.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kovalt::fuzz {

/// Separates two sections of an input.
inline constexpr const char* kSectionEnd = "\n%%\n";

/// Returns the bytes of an input.
std::string inputText(const std::uint8_t* data, std::size_t size);

/// Removes the front of `text` up to and including `end`, and returns it without `end`. If there is no `end`, removes
/// and returns all of it.
std::string takeUpTo(const std::string& end, std::string& text);

/// Returns the lines of `text`. An empty text has none.
std::vector<std::string> linesOf(std::string text);

/// Returns the number at the front of `text`, at most `limit`, or 0 if there is no number.
std::size_t numberIn(const std::string& text, std::size_t limit);

}  // namespace kovalt::fuzz
