#pragma once

// The completion of command lines of kovalt-edit.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "completion/complete.h"

namespace kovalt {

/// Whether a command, with or without its folder, is kovalt-edit.
bool isEditCommand(std::string_view command);

/// What can stand in place of the word at `cursor`, which is not 0, in a line of kovalt-edit. After the file it accepts
/// the options of Kovalt. The file is read as complete() reads it.
Completion completeEdit(std::vector<std::string> words, std::size_t cursor);

}  // namespace kovalt
