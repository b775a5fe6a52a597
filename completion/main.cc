// Completes a command line for the shells' completion functions. The arguments are the index of the word at the cursor,
// counted from 0, and the words of the line without the shell's quoting. Prints "files" if the word is a file name.
// Otherwise prints "words", or "words cut" if there are too many candidates to list all, and then one candidate per
// line; an option is followed by a tab and its description.
//
// Never prints on standard error and always exits with status 0: an error would garble the command line that the user
// is typing.

#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "completion/complete.h"
#include "completion/complete_edit.h"

namespace {

void print(const kovalt::Completion& completion) {
  std::string text = completion.isFile ? "files\n" : completion.isCut ? "words cut\n" : "words\n";
  for (const std::string& line : completion.lines) {
    text.append(line) += '\n';
  }
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void completeAndPrint(const std::vector<std::string>& words, std::string_view position) {
  std::size_t cursor = 0;
  const auto [end, error] = std::from_chars(position.data(), position.data() + position.size(), cursor);
  if (error == std::errc() && cursor > 0 && cursor < words.size()) {
    print(kovalt::isEditCommand(words.front()) ? kovalt::completeEdit(words, cursor) : kovalt::complete(words, cursor));
  }
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (std::freopen("/dev/null", "w", stderr) == nullptr || argumentCount < 3) {
    return EXIT_SUCCESS;
  }
  // The file may need more memory than there is, which aborts the process that reads it. A child reads it, so that the
  // shell sees no abort.
  const pid_t child = fork();
  if (child == 0) {
    completeAndPrint({arguments + 2, arguments + argumentCount}, arguments[1]);
  } else if (child > 0) {
    waitpid(child, nullptr, 0);
  }
  return EXIT_SUCCESS;
}
