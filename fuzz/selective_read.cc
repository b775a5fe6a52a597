// Reads print the same whether the load kept the whole document or only what they need. An input has a section with the
// arguments of reads, one per line, and the content of the file.

#include <string>
#include <vector>

#include "actions/read/print_read_results.h"
#include "app/parse_arguments.h"
#include "app/run.h"
#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/target.h"
#include "json/load/load_document.h"
#include "support/capture.h"
#include "support/memory_file.h"

namespace kovalt::fuzz {
namespace {

using test::capture;
using test::Printed;

/// Does what a call with these reads does, but keeps the whole document.
void readWholeFile(const ToolContext& context) {
  Document document;
  if (!loadDocument(context.filePath, document, false)) {
    document.SetObject();
  }
  printReadResults(context.readActions, document);
}

void tryInput(std::string input) {
  static const test::MemoryFile kFile;
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
  const Printed selective = capture([&] { expect(run(context), "a call that only reads succeeds"); });
  const Printed whole = capture([&] { readWholeFile(context); });
  expect(selective.output == whole.output && selective.errors == whole.errors,
         "reads of a projection print the same as reads of the whole document");
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
