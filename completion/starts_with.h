#pragma once

#include <string_view>

namespace kovalt {

/// Whether the bytes of `text` begin with those of `start`.
inline bool startsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

}  // namespace kovalt
