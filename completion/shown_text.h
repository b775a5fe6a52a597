#pragma once

#include <string_view>

namespace kovalt {

/// Whether a terminal shows `text` unchanged: it is valid UTF-8 without the control characters U+0000 to U+001F and
/// U+007F to U+009F.
bool canBeShown(std::string_view text);

}  // namespace kovalt
