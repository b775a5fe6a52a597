#pragma once

// The text of floating-point numbers.

#include <cstddef>

namespace kovalt {

/// No number has a longer text.
inline constexpr std::size_t kLongestNumber = 25;

/// Puts the text of `value`, which is finite, to `text` and returns its end. No text with fewer digits reads back to
/// the same value; of several with as few it is the one that RapidJSON gives. It is laid out as RapidJSON does it:
/// always with a point or an exponent, the latter only from 1e21 up and below 1e-6.
char* writeDouble(double value, char* text);

}  // namespace kovalt
