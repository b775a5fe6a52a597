#pragma once

// The usage text.

#include <string_view>

namespace kovalt {

/// The text that a call without arguments prints, ended by a line feed. Where it disagrees with the parser it is the
/// text that users know, kept byte for byte, runs of spaces included.
extern const std::string_view kUsageText;

}  // namespace kovalt
