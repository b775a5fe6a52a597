// Reads print the same whether the load kept only what they can look at or the whole file.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "actions/read/print_read_results.h"
#include "app/parse_arguments.h"
#include "app/run.h"
#include "capture.h"
#include "json/load/load_document.h"
#include "json/standard_streams.h"
#include "memory_file.h"

namespace kovalt::test {
namespace {

/// Makes documents full of duplicates and wrong kinds, and reads that meet them.
class Generator {
 public:
  std::string value(int depth) {
    const std::size_t kind = below(depth > 0 ? 10 : 6);
    if (kind < 6) {
      return pick({"null", "true", "false", "7", "-7.5", "1e30", R"("a")", R"("7")", R"("a\u0000b")",
                   R"("a text that is longer than one that stands inside of a value")"});
    }
    const bool isArray = kind < 8;
    std::string text(1, isArray ? '[' : '{');
    const std::size_t size = below(5);
    for (std::size_t i = 0; i < size; ++i) {
      text += (i > 0 ? "," : "") + (isArray ? "" : '"' + name() + "\":") + value(depth - 1);
    }
    return text + (isArray ? ']' : '}');
  }

  /// An array of objects, most of the time: reads come further there.
  std::string document() {
    if (below(3) == 0) {
      return value(4);
    }
    std::string text = "{\"" + name() + "\":" + value(2) + ",\"a\":[";
    for (std::size_t i = below(5); i > 0; --i) {
      text += "{\"" + name() + "\":" + value(2) + ",\"" + name() + "\":" + value(3) + "},";
    }
    return text + value(3) + "],\"" + name() + "\":" + value(3) + '}';
  }

  std::vector<std::string> reads() {
    std::vector<std::string> words;
    for (std::size_t count = 1 + below(3); count > 0; --count) {
      const std::string option = pick({"-r", "-r", "-ras", "-rasq", "-rac", "-racq", "-roac", "-roacs"});
      words.insert(words.end(), {option, path()});
      if (option == "-roac" || option == "-roacs") {
        for (std::size_t fields = 2 + below(2); fields > 0; --fields) {
          const std::string field = path();
          words.push_back(field.empty() ? name() + ",," + name() : field);
        }
      }
    }
    return words;
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  std::string pick(const std::vector<std::string>& texts) { return texts[below(texts.size())]; }

  std::string name() { return pick({"a", "b", "c", ""}); }

  std::string path() {
    std::string text = below(8) == 0 ? "" : "a";
    for (std::size_t steps = below(4); steps > 0; --steps) {
      text += '.' + name() + (below(3) == 0 ? pick({"=7", "=-7.5", "=true", "=a", "="}) : "");
    }
    return text;
  }

  std::mt19937 random_{1};
};

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

  /// What the calls print on both streams.
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

/// The last few lines before the first difference.
std::string firstDifference(const std::string& left, const std::string& right) {
  std::size_t place = 0;
  while (place < left.size() && place < right.size() && left[place] == right[place]) {
    ++place;
  }
  return place == left.size() && place == right.size() ? ""
                                                       : left.substr(place - std::min<std::size_t>(place, 500), 600);
}

TEST_F(SelectiveRead, PrintsWhatAReadOfTheWholeFilePrints) {
  Generator generator;
  std::vector<Call> calls(8000);
  for (Call& call : calls) {
    call.document = generator.document();
    call.words = generator.reads();
  }
  const Printed selective = performAll(calls, false);
  const Printed whole = performAll(calls, true);
  EXPECT_EQ(firstDifference(selective.output, whole.output), "");
  EXPECT_EQ(firstDifference(selective.errors, whole.errors), "");
}

}  // namespace
}  // namespace kovalt::test
