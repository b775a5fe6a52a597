#pragma once

// JSON values from and to their texts, by RapidJSON alone.

#include <string>
#include <string_view>

#include "json/document.h"

namespace kovalt::test {

/// The document of a text that a test wrote itself; one that does not parse fails the test.
Document parsed(std::string_view text);

/// A value made from such a text, in the pool of another document.
Value parsedInto(std::string_view text, Allocator& allocator);

/// The text of `value` without any white space.
std::string jsonOf(const Value& value);

}  // namespace kovalt::test
