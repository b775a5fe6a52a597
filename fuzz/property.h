#pragma once

// What every fuzz target states its property with.

#include <string_view>

namespace kovalt::fuzz {

/// Ends the process with a report on what was standard error at its start, where `holds` is false.
void expect(bool holds, std::string_view property);

}  // namespace kovalt::fuzz
