#pragma once

// The completion of a command line, the same for every shell.

#include <cstddef>
#include <string>
#include <vector>

namespace kovalt {

/// What can stand at the cursor.
struct Completion {
  bool takesFile = false;          ///< A file name, which the shell itself knows best how to complete.
  bool isCut = false;              ///< There are more candidates than these.
  std::vector<std::string> lines;  ///< The candidates; after an option stand a tab and what it does.
};

/// What can stand in place of the word at `cursor`, which is typed up to there. The words are those of the command
/// line, without the shell's quoting, and with the program's own name as the first. The file that they name is read
/// where a key path is wanted; what is wrong with it is reported on standard error.
Completion complete(const std::vector<std::string>& words, std::size_t cursor);

}  // namespace kovalt
