#pragma once

// Floating-point numbers as text.

#include <cstddef>

namespace kovalt {

/// The length of the longest text that `writeDouble` writes.
inline constexpr std::size_t kLongestDouble = 25;

/// Writes the text of `value`, which must be finite, to `text`, which must have room for `kLongestDouble` characters.
/// Returns its end. No text with fewer digits means the same value to a reader that rounds correctly. Of several with
/// as few, it is the one that RapidJSON writes, or that of the C++ library if RapidJSON's has more digits. It has
/// RapidJSON's form: always with a point or an exponent, the latter only from 1e21 up and below 1e-6.
char* writeDouble(double value, char* text);

}  // namespace kovalt
