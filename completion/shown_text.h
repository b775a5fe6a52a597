#pragma once

#include <string_view>

namespace kovalt {

/// Whether `text` is valid UTF-8 without the control characters U+0000 to U+001F and U+007F to U+009F, which a terminal
/// could obey.
bool canBeShown(std::string_view text);

}  // namespace kovalt
