#pragma once

// The display of a whole value.

#include "json/document.h"

namespace kovalt {

/// Prints the text of `value` on standard output, indented by four spaces a level, and an end of line.
void printValue(const Value& value);

}  // namespace kovalt
