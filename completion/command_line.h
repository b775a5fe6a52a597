#pragma once

// The role of the word at the cursor of an unfinished command line.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "app/option_table.h"

namespace kovalt {

/// The role of the word at the cursor, and what the rest of the line says about it. The views refer to the words of the
/// line.
struct CursorPlace {
  const Option* option = nullptr;  ///< The option whose argument the word is; nullptr if the word is an option itself.
  ArgumentKind argument = ArgumentKind::none;
  bool inList = false;        ///< The word may also begin the next option.
  std::string_view keyPath;   ///< The first argument of `option`.
  std::string_view filePath;  ///< The work file, before or after the cursor; empty if none is named.
  bool fileOptionGiven = false;
};

/// Determines the role of the word at `cursor`. Reads the line as the parser does, but skips unknown words.
CursorPlace findCursorPlace(const std::vector<std::string>& words, std::size_t cursor);

}  // namespace kovalt
