#pragma once

// The completion of command lines of kovalt-edit.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "completion/complete.h"

namespace kovalt {

/// Whether `command`, a name or a path, is kovalt-edit.
bool isEditCommand(std::string_view command);

/// Completes `words[cursor]` of a command line of kovalt-edit, as `complete` does for Kovalt. `cursor` must not be 0.
Completion completeEdit(std::vector<std::string> words, std::size_t cursor);

}  // namespace kovalt
