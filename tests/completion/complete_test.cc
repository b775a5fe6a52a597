#include "completion/complete.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "app/option_table.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using Words = std::vector<std::string>;

constexpr const char* kCursor = "|";

struct LineRow {
  std::string name;
  Words line;  ///< Without the name of the program. The word at the cursor ends in "|".
  Words expected;
};

std::ostream& operator<<(std::ostream& out, const LineRow& row) { return out << row.name; }

/// Placeholders in the rows for file names and for all options.
constexpr const char* kFiles = "files";
constexpr const char* kOptions = "options";
constexpr const char* kOptionsWithoutFile = "options without --file";

/// Returns the candidates without the descriptions of options.
Words wordsOf(const Completion& completion) {
  Words words;
  for (const std::string& line : completion.lines) {
    words.push_back(line.substr(0, line.find('\t')));
  }
  return words;
}

Words allOptions(bool withFileOptions) {
  Words forms;
  for (const Option& option : kOptionTable) {
    if (withFileOptions || option.effect != OptionEffect::workFile) {
      forms.emplace_back(option.longForm);
      forms.emplace_back(option.shortForm);
    }
  }
  return forms;
}

Completion completeLine(Words line) {
  line.insert(line.begin(), "Kovalt");
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (!line[i].empty() && line[i].back() == *kCursor) {
      line[i].pop_back();
      return complete(line, i);
    }
  }
  ADD_FAILURE() << "no cursor";
  return {};
}

class CompleteLine : public testing::TestWithParam<LineRow> {
 protected:
  void SetUp() override {
    folder_ = testing::TempDir() + "kovalt-completion-XXXXXX";
    ASSERT_NE(mkdtemp(folder_.data()), nullptr);
    back_ = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
    std::ofstream("c.json") << R"({"network":{"port":1},"list":[{"id":1,"at":{"host":"h"}}],"flag":true})";
    std::ofstream("broken.json") << R"({"network":)";
  }
  void TearDown() override {
    std::filesystem::current_path(back_);
    std::filesystem::remove_all(folder_);
  }

 private:
  std::string folder_;
  std::filesystem::path back_;
};

TEST_P(CompleteLine, OffersTheCandidatesAtTheCursor) {
  const Completion completion = completeLine(GetParam().line);
  const Words& expected = GetParam().expected;
  EXPECT_FALSE(completion.isCut);
  if (expected == Words{kFiles}) {
    EXPECT_TRUE(completion.isFile);
    EXPECT_TRUE(completion.lines.empty());
    return;
  }
  EXPECT_FALSE(completion.isFile);
  if (expected == Words{kOptions} || expected == Words{kOptionsWithoutFile}) {
    EXPECT_EQ(wordsOf(completion), allOptions(expected == Words{kOptions}));
  } else {
    EXPECT_EQ(wordsOf(completion), expected);
  }
}

std::vector<LineRow> optionRows() {
  return {
      {"all_options", {"|"}, {kOptions}},
      {"options_after_an_option", {"--read", "k", "|"}, {kOptions}},
      {"long_forms", {"--readArrayC|"}, {"--readArrayComma", "--readArrayCommaNoQuote"}},
      {"short_forms", {"-rm|"}, {"-rm", "-rmc"}},
      {"no_such_option", {"--write|"}, {}},
      {"no_option_without_dash", {"read|"}, {}},
      {"no_second_file", {"--file", "c.json", "|"}, {kOptionsWithoutFile}},
      {"no_second_file_by_its_form", {"-fd", "c.json", "--file|"}, {}},
      {"no_file_before_the_file", {"--fi|", "-f", "c.json"}, {}},
      {"file_that_is_a_key_path", {"--read", "--file", "--fi|"}, {"--file", "--fileDisplay"}},
      {"after_an_unknown_word", {"unknown", "--fileD|"}, {"--fileDisplay"}},
      {"after_a_list", {"--addArray", "k", "a", "b", "|"}, {kOptions}},
      {"option_ends_a_list", {"--addArray", "k", "a", "--readArrayCommaN|"}, {"--readArrayCommaNoQuote"}},
      {"option_in_place_of_a_list", {"--addArray", "k", "|"}, {kOptions}},
      {"option_after_fields", {"-roac", "list", "id", "-rmc|"}, {"-rmc"}},
  };
}

std::vector<LineRow> argumentRows() {
  return {
      {"file", {"--file", "|"}, {kFiles}},
      {"file_by_short_form", {"-f", "c|"}, {kFiles}},
      {"displayed_file", {"--fileDisplay", "|"}, {kFiles}},
      {"displayed_file_by_short_form", {"-fd", "|"}, {kFiles}},
      {"merged_file", {"--addFile", "|"}, {kFiles}},
      {"file_merged_at", {"--addFileAt", "k", "|"}, {kFiles}},
      {"string", {"-f", "c.json", "--addString", "k", "n|"}, {}},
      {"empty_string", {"-f", "c.json", "--addString", "k", "|"}, {}},
      {"number", {"-f", "c.json", "--addNumber", "k", "|"}, {}},
      {"boolean", {"--addBoolean", "k", "|"}, {"true", "false"}},
      {"boolean_by_short_form", {"-ab", "k", "t|"}, {"true"}},
      {"booleans", {"--addArrayBoolean", "k", "true", "f|"}, {"false"}},
      {"strings", {"-f", "c.json", "--addArray", "k", "n|"}, {}},
      {"value_that_looks_like_an_option", {"--addString", "k", "--fi|"}, {}},
  };
}

std::vector<LineRow> keyPathRows() {
  std::vector<LineRow> rows = {
      {"key_path", {"--file", "c.json", "--read", "netw|"}, {"network."}},
      {"key_path_next_step", {"--file", "c.json", "--read", "network.|"}, {"network.port"}},
      {"key_path_of_a_later_file", {"--read", "netw|", "--file", "c.json"}, {"network."}},
      {"key_path_between_options", {"--read", "network.port", "-ao", "fl|", "-fd", "c.json"}, {"flag"}},
      {"key_path_to_merge_at", {"-f", "c.json", "--addFileAt", "netw|"}, {"network."}},
      {"key_path_of_an_option_after_fields", {"-f", "c.json", "-roac", "list", "id", "-r", "netw|"}, {"network."}},
      {"key_path_of_an_array", {"-f", "c.json", "--read", "list.|"}, {"list.id=1."}},
      {"key_path_to_remove", {"-f", "c.json", "-rm", "list|"}, {"list"}},
      {"key_path_to_remove_and_clear", {"-f", "c.json", "--removeAndClear", "list.|"}, {}},
      {"key_path_to_concatenate", {"-f", "c.json", "-roac", "l|"}, {"list", "list."}},
      {"fields", {"-f", "c.json", "-roac", "list", "|"}, {"id", "at."}},
      {"further_fields", {"-f", "c.json", "--readObjectArrayConcatSep", "list", "id", "at.|"}, {"at.host"}},
      {"fields_of_a_value_that_is_not_an_array", {"-f", "c.json", "-roac", "network", "p|"}, {}},
      {"first_file_counts", {"-f", "c.json", "-f", "broken.json", "--read", "netw|"}, {"network."}},
      {"empty_file_name_is_ignored", {"-f", "", "-f", "c.json", "--read", "netw|"}, {"network."}},
      {"file_that_is_a_value", {"--addString", "--file", "c.json", "--read", "netw|"}, {}},
      {"file_to_merge_is_not_read", {"--addFile", "c.json", "--read", "netw|"}, {}},
      {"no_file", {"--read", "netw|"}, {}},
      {"no_file_and_nothing_typed", {"--read", "|"}, {}},
      {"missing_file", {"-f", "none.json", "--read", "|"}, {}},
      {"broken_file", {"-f", "broken.json", "--read", "|"}, {}},
      {"folder", {"-f", ".", "--read", "|"}, {}},
      {"file_without_its_name", {"--read", "netw|", "--file"}, {}},
  };
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Options, CompleteLine, testing::ValuesIn(optionRows()), rowName<LineRow>);
INSTANTIATE_TEST_SUITE_P(Arguments, CompleteLine, testing::ValuesIn(argumentRows()), rowName<LineRow>);
INSTANTIATE_TEST_SUITE_P(KeyPaths, CompleteLine, testing::ValuesIn(keyPathRows()), rowName<LineRow>);

TEST(CompleteOptions, DescribesEachOptionInItsOwnWords) {
  std::map<std::string, std::string> optionOf;
  for (const std::string& line : completeLine({"|"}).lines) {
    const std::size_t tab = line.find('\t');
    ASSERT_NE(tab, std::string::npos) << line;
    EXPECT_LT(tab + 1, line.size()) << line;
    const std::string form = line.substr(0, tab);
    const std::string option(findOption(form)->longForm);
    EXPECT_EQ(optionOf.emplace(line.substr(tab), option).first->second, option) << "two options with one description";
  }
}

}  // namespace
}  // namespace kovalt::test
