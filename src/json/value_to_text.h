#pragma once

// The text of a value.

#include <string>

#include "json/document.h"

namespace kovalt {

/// The JSON text of `value`: without any white space, or, with `pretty`, indented by four spaces a level. No line end
/// follows it.
std::string valueToText(const Value& value, bool pretty);

}  // namespace kovalt
