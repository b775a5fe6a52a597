#pragma once

// The numbers that are read at once. It takes a quarter off the time of loading coordinates.

#include <cstddef>

#include "json/document.h"

namespace kovalt {

/// Adds to `document` the number that starts at `text`, with the value that RapidJSON computes, if it has no exponent
/// and up to 17 digits, zeros in front not counted, or 19 with them. Returns how long the number is, or 0 if it is none
/// or another one, or may go on after the NUL character at the end of the buffer. There must be one, and eight
/// characters readable from there on.
std::size_t takeShortNumber(const char* text, Document& document);

}  // namespace kovalt
