// Reads print the same whether the load keeps the whole file or only the values that they can use.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "actions/read/print_read_results.h"
#include "app/parse_arguments.h"
#include "app/run.h"
#include "json/load/load_document.h"
#include "json/standard_streams.h"
#include "support/capture.h"
#include "support/memory_file.h"
#include "support/random_json.h"

namespace kovalt::test {
namespace {

/// One to three reads.
std::vector<std::string> randomReads(RandomJson& random) {
  std::vector<std::string> words;
  for (std::size_t count = 1 + random.below(3); count > 0; --count) {
    const std::string option = random.pick({"-r", "-r", "-ras", "-rasq", "-rac", "-racq", "-roac", "-roacs"});
    words.insert(words.end(), {option, random.path(5)});
    if (option == "-roac" || option == "-roacs") {
      for (std::size_t fields = 2 + random.below(2); fields > 0; --fields) {
        const std::string field = random.path(5);
        words.push_back(field.empty() ? "b,,c" : field);
      }
    }
  }
  return words;
}

class SelectiveRead : public testing::Test {
 protected:
  struct Call {
    std::string document;
    std::vector<std::string> words;
  };

  void perform(const Call& call, bool keepsAll) {
    file_.write(call.document);
    const std::string path = file_.path();
    std::vector<const char*> arguments = {"Kovalt", "-f", path.c_str()};
    for (const std::string& word : call.words) {
      arguments.push_back(word.c_str());
    }
    ToolContext context;
    ASSERT_TRUE(parseArguments(context, static_cast<int>(arguments.size()), arguments.data()));
    if (!keepsAll) {
      run(context);
      return;
    }
    Document document;
    if (!loadDocument(path, document, false)) {
      document.SetObject();
    }
    printReadResults(context.readActions, document);
  }

  /// The output of all calls, each after a line that shows the call.
  Printed performAll(const std::vector<Call>& calls, bool keepsAll) {
    return capture([&] {
      for (const Call& call : calls) {
        std::string line = call.document;
        for (const std::string& word : call.words) {
          line += ' ' + word;
        }
        printLine(line);
        reportLine(line);
        perform(call, keepsAll);
      }
    });
  }

 private:
  MemoryFile file_;
};

/// The text around the first difference; empty if there is none.
std::string firstDifference(const std::string& left, const std::string& right) {
  std::size_t place = 0;
  while (place < left.size() && place < right.size() && left[place] == right[place]) {
    ++place;
  }
  return place == left.size() && place == right.size() ? ""
                                                       : left.substr(place - std::min<std::size_t>(place, 500), 600);
}

TEST_F(SelectiveRead, PrintsTheSameAsAReadOfTheWholeFile) {
  RandomJson random;
  std::vector<Call> calls(8000);
  for (Call& call : calls) {
    call.document = random.document();
    call.words = randomReads(random);
  }
  const Printed selective = performAll(calls, false);
  const Printed whole = performAll(calls, true);
  EXPECT_EQ(firstDifference(selective.output, whole.output), "");
  EXPECT_EQ(firstDifference(selective.errors, whole.errors), "");
}

}  // namespace
}  // namespace kovalt::test
