#pragma once

// Converts JSON values from and to text with RapidJSON's own reader and writer, not with the code under test.

#include <string>
#include <string_view>

#include "json/document.h"

namespace kovalt::test {

/// Parses `text`. A parse error fails the test.
Document parsed(std::string_view text);

/// As `parsed`, with a value in the pool of another document.
Value parsedInto(std::string_view text, Allocator& allocator);

/// The text of `value` without whitespace.
std::string jsonOf(const Value& value);

}  // namespace kovalt::test
