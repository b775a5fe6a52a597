#pragma once

// How an input is cut into the parts that a target needs. Inputs are texts, so that saved ones can be read.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kovalt::fuzz {

/// Between two sections of an input.
inline constexpr const char* kSectionEnd = "\n%%\n";

/// The bytes of an input.
std::string inputText(const std::uint8_t* data, std::size_t size);

/// Takes the text up to `end` off the front of `text`, and `end` too; without an `end`, all of it.
std::string takeUpTo(const std::string& end, std::string& text);

/// The lines of `text`; an empty text has none.
std::vector<std::string> linesOf(std::string text);

/// The number at the front of `text`, at most `limit`; 0 where there is none.
std::size_t numberIn(const std::string& text, std::size_t limit);

}  // namespace kovalt::fuzz
