#pragma once

// The usage text.

#include <string_view>

namespace kovalt {

/// The text that a call without arguments prints. It ends in a line feed, and printing it as a line adds another. It
/// disagrees with the parser in places, and is kept byte for byte as users know it, runs of spaces included.
extern const std::string_view kUsageText;

}  // namespace kovalt
