#include "completion/complete_edit.h"

#include "completion/starts_with.h"

namespace kovalt {
namespace {

constexpr std::string_view kCreate = "--create";

Completion ownOptions(std::string_view typed) {
  Completion completion;
  if (startsWith(kCreate, typed)) {
    completion.lines.push_back(std::string(kCreate) + "\tcreate the file if it does not exist");
  }
  if (startsWith("--help", typed)) {
    completion.lines.emplace_back("--help\tprint a short description");
  }
  return completion;
}

}  // namespace

bool isEditCommand(std::string_view command) { return command.substr(command.rfind('/') + 1) == "kovalt-edit"; }

Completion completeEdit(std::vector<std::string> words, std::size_t cursor) {
  if (cursor == 1 && startsWith(words[cursor], "-")) {
    return ownOptions(words[cursor]);
  }
  // Rewrites the line as the equivalent line of Kovalt.
  if (cursor > 1 && words[1] == kCreate) {
    words[1] = "--file";
  } else {
    words.insert(words.begin() + 1, "--file");
    ++cursor;
  }
  return complete(words, cursor);
}

}  // namespace kovalt
