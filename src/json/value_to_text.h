#pragma once

// The text of a value.

#include <string>

#include "json/document.h"

namespace kovalt {

/// The JSON text of `value`: without any white space, or, with `pretty`, as it is displayed, indented by four spaces a
/// level. There is no third form, hence the plain Boolean. No line end follows it.
std::string valueToText(const Value& value, bool pretty);

}  // namespace kovalt
