#pragma once

// What stands where on a command line that is still being typed.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "app/option_table.h"

namespace kovalt {

/// The word at the cursor, and what the rest of the line means for it. The views look into the words of the line.
struct CursorPlace {
  const Option* option = nullptr;  ///< The option that the word is an argument of; nullptr where it is an option.
  ArgumentKind argument = ArgumentKind::none;
  bool inList = false;        ///< The word may begin the next option as well.
  std::string_view keyPath;   ///< The first argument of `option`.
  std::string_view filePath;  ///< The file to work on, wherever the line names it; empty for none.
  bool fileOptionGiven = false;
};

/// Finds out about the word at `cursor`. The line is read as the parser does, but words that are not understood are
/// passed over.
CursorPlace findCursorPlace(const std::vector<std::string>& words, std::size_t cursor);

}  // namespace kovalt
