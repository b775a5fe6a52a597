#pragma once

// The completion of a command line, the same for every shell.

#include <cstddef>
#include <string>
#include <vector>

namespace kovalt {

/// The candidates for the word at the cursor.
struct Completion {
  bool isFile = false;             ///< The word is a file name, which the shell completes itself.
  bool isCut = false;              ///< There are too many candidates, so `lines` may lack some.
  std::vector<std::string> lines;  ///< The candidates. An option is followed by a tab and its description.
};

/// Completes `words[cursor]`, which ends at the cursor. `words` is the command line without the shell's quoting; its
/// first word is the program. For a key path, reads the file that the line names, and reports problems with it on
/// standard error.
Completion complete(const std::vector<std::string>& words, std::size_t cursor);

}  // namespace kovalt
