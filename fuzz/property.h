#pragma once

// States the properties that a fuzz target checks.

#include <string_view>

namespace kovalt::fuzz {

/// If `holds` is false, reports `property` on the original standard error and aborts.
void expect(bool holds, std::string_view property);

}  // namespace kovalt::fuzz
