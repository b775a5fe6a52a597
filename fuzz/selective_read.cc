// Reads print the same bytes whether the load kept only what they can look at or the whole file. An input is a section
// with one argument a line, all of them of reads, and the content of the file.

#include <sys/mman.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "actions/read/print_read_results.h"
#include "app/parse_arguments.h"
#include "app/run.h"
#include "fuzz/caught_stream.h"
#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/target.h"
#include "json/load/load_document.h"

namespace kovalt::fuzz {
namespace {

/// The one file of the target, which is in memory.
class WorkFile {
 public:
  WorkFile() : descriptor_(memfd_create("file", 0)) { expect(descriptor_ >= 0, "a file can be made in memory"); }
  WorkFile(const WorkFile&) = delete;
  WorkFile& operator=(const WorkFile&) = delete;
  ~WorkFile() { close(descriptor_); }

  [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  void write(const std::string& content) const {
    expect(ftruncate(descriptor_, 0) == 0, "a file can be emptied");
    expect(pwrite(descriptor_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()),
           "a file can be written");
  }

 private:
  int descriptor_;
};

/// What a call prints on both streams.
std::pair<std::string, std::string> printedBy(const std::function<void()>& call) {
  const CaughtStream output(STDOUT_FILENO);
  const CaughtStream errors(STDERR_FILENO);
  call();
  return {output.text(), errors.text()};
}

/// Does what a call with these reads does, on the whole file.
void readWholeFile(const ToolContext& context) {
  Document document;
  if (!loadDocument(context.filePath, document, false)) {
    document.SetObject();
  }
  printReadResults(context.readActions, document);
}

void tryInput(std::string input) {
  static const WorkFile kFile;
  const std::string path = kFile.path();
  const std::vector<std::string> words = linesOf(takeUpTo(kSectionEnd, input));
  std::vector<const char*> arguments = {"Kovalt", "-f", path.c_str()};
  for (const std::string& word : words) {
    arguments.push_back(word.c_str());
  }
  ToolContext context;
  if (!parseArguments(context, static_cast<int>(arguments.size()), arguments.data()) || context.readActions.empty() ||
      !context.editActions.empty() || !context.removeActions.empty()) {
    return;
  }
  kFile.write(input);
  const auto selective = printedBy([&] { expect(run(context), "a call that only reads succeeds"); });
  expect(selective == printedBy([&] { readWholeFile(context); }),
         "reads of what is kept print what reads of the whole file print");
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
