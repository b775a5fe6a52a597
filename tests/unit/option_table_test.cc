// The table of options against a second one, written by hand.

#include "app/option_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>

#include "app/parse_arguments.h"
#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"
#include "support/texts.h"

namespace kovalt::test {
namespace {

/// Where an option leaves what it stands for.
enum class Place { edits, removals, reads, file };

/// What is expected of one option.
struct Expectation {
  std::string longForm;
  std::string shortForm;
  std::size_t required;  ///< With fewer arguments than these the option is refused.
  Texts arguments;       ///< Enough of them.
  Place place;
  /// What the option does then: the value that an addition adds, the document that a removal leaves of
  /// {"k":{"x":{"y":1}}}, the text that is read from `kReadDocument`, or the file and whether it is displayed.
  std::string effect;
};

constexpr const char* kReadDocument = R"({"k":["a","b,c",1],"o":[{"id":0,"p":"x"},{"id":1,"p":"y"}]})";

const std::vector<Expectation>& expectations() {
  static const std::vector<Expectation> rows = {
      {"--addString", "-as", 2, {"k.l", "v"}, Place::edits, R"({"k":{"l":"v"}})"},
      {"--addBoolean", "-ab", 2, {"k.l", "TRUE"}, Place::edits, R"({"k":{"l":true}})"},
      {"--addNumber", "-an", 2, {"k.l", "-5"}, Place::edits, R"({"k":{"l":-5}})"},
      {"--addObject", "-ao", 1, {"k.l"}, Place::edits, R"({"k":{"l":{}}})"},
      {"--addArray", "-aa", 1, {"k.l", "1", "b"}, Place::edits, R"({"k":{"l":["1","b"]}})"},
      {"--addArrayBoolean", "-aab", 1, {"k.l", "1,FALSE"}, Place::edits, R"({"k":{"l":[true,false]}})"},
      {"--addArrayNumber", "-aan", 1, {"k.l", "1,-2"}, Place::edits, R"({"k":{"l":[1,-2]}})"},
      {"--addFile", "-af", 1, {"no/such/file"}, Place::edits, "{}"},
      {"--addFileAt", "-afat", 2, {"k.l", "no/such/file"}, Place::edits, R"({"k":{"l":{}}})"},
      {"--remove", "-rm", 1, {"k.x.y"}, Place::removals, R"({"k":{"x":{}}})"},
      {"--removeAndClear", "-rmc", 1, {"k.x.y"}, Place::removals, "{}"},
      {"--read", "-r", 1, {"k"}, Place::reads, R"(["a","b,c",1])"},
      {"--readArraySpace", "-ras", 1, {"k"}, Place::reads, R"("a" "b,c" 1)"},
      {"--readArraySpaceNoQuote", "-rasq", 1, {"k"}, Place::reads, "a b,c 1"},
      {"--readArray", "-ra", 1, {"k"}, Place::reads, "a b,c 1"},
      {"--readArrayComma", "-rac", 1, {"k"}, Place::reads, R"("a","b,c",1)"},
      {"--readArrayCommaNoQuote", "-racq", 1, {"k"}, Place::reads, "a,b,c,1"},
      {"--readObjectArrayConcat", "-roac", 2, {"o", "id", "p"}, Place::reads, "0 x 1 y"},
      {"--readObjectArrayConcatSep", "-roacs", 2, {"o", "id", "p", "/"}, Place::reads, "0/x 1/y"},
      {"--file", "-f", 1, {"f.json"}, Place::file, "f.json"},
      {"--fileDisplay", "-fd", 1, {"f.json"}, Place::file, "f.json displayed"},
  };
  return rows;
}

std::set<std::string> expectedForms() {
  std::set<std::string> forms;
  for (const Expectation& expectation : expectations()) {
    forms.insert({expectation.longForm, expectation.shortForm});
  }
  return forms;
}

TEST(OptionTable, HasNoFormTwice) {
  std::set<std::string_view> forms;
  for (const Option& option : kOptionTable) {
    EXPECT_TRUE(forms.insert(option.longForm).second) << option.longForm;
    EXPECT_TRUE(forms.insert(option.shortForm).second) << option.shortForm;
  }
  EXPECT_EQ(forms.size(), 42U);
}

TEST(OptionTable, SpellsEveryPairOfForms) {
  std::set<std::pair<std::string, std::string>> expected;
  for (const Expectation& expectation : expectations()) {
    expected.emplace(expectation.longForm, expectation.shortForm);
  }
  std::set<std::pair<std::string, std::string>> pairs;
  for (const Option& option : kOptionTable) {
    pairs.emplace(option.longForm, option.shortForm);
  }
  EXPECT_EQ(pairs, expected);
}

TEST(OptionTable, HasLongFormsOfTwoDashesAndShortFormsOfOne) {
  for (const Option& option : kOptionTable) {
    EXPECT_EQ(option.longForm.substr(0, 2), "--") << option.longForm;
    EXPECT_EQ(option.shortForm.substr(0, 1), "-") << option.shortForm;
    EXPECT_NE(option.shortForm.substr(1, 1), "-") << option.shortForm;
  }
}

TEST(FindOption, FindsTheRowOfBothForms) {
  for (const Option& option : kOptionTable) {
    EXPECT_EQ(findOption(option.longForm), &option) << option.longForm;
    EXPECT_EQ(findOption(option.shortForm), &option) << option.shortForm;
  }
}

TEST(FindOption, FindsNothingButTheExactForms) {
  const std::set<std::string> forms = expectedForms();
  Texts others = {"", "-", "--", "---", "-h", "--help", "--version", "addString", "as", "f"};
  for (const std::string& form : forms) {
    std::string upper = form;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    std::string lower = form;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    const std::string undashed = form.substr(1);
    others.insert(others.end(),
                  {form + form, form + " ", " " + form, form + "=", form + "s", form + std::string(1, '\0'), "-" + form,
                   undashed, form.substr(0, form.size() - 1), upper, lower});
  }
  for (const std::string& other : others) {
    // A form less its last letter may be another form.
    EXPECT_EQ(findOption(other) != nullptr, forms.count(other) == 1) << '"' << other << '"';
  }
}

// Each form of each option, as the parser treats it.

struct FormRow : Row {
  std::string form;
  Expectation expectation;
};

std::vector<FormRow> formRows() {
  std::vector<FormRow> rows;
  for (const Expectation& expectation : expectations()) {
    rows.push_back({{"long_" + expectation.longForm.substr(2)}, expectation.longForm, expectation});
    rows.push_back({{"short_" + expectation.shortForm.substr(1)}, expectation.shortForm, expectation});
  }
  return rows;
}

class OptionForm : public testing::TestWithParam<FormRow> {
 protected:
  /// Parses the form and the first `count` of its arguments.
  void parse(std::size_t count) {
    std::vector<const char*> arguments = {"Kovalt", GetParam().form.c_str()};
    for (std::size_t i = 0; i < count; ++i) {
      arguments.push_back(GetParam().expectation.arguments[i].c_str());
    }
    printed =
        capture([&] { succeeded = parseArguments(context, static_cast<int>(arguments.size()), arguments.data()); });
  }

  std::string effectOfTheEdit() {
    Document document;
    EditedDocument edited(document);
    Value chain;
    printed = capture([&] { chain = buildPathChain(*context.editActions.front(), edited); });
    return jsonOf(chain);
  }

  std::string effectOfTheRemoval() {
    Document document = parsed(R"({"k":{"x":{"y":1}}})");
    EditedDocument edited(document);
    EXPECT_TRUE(context.removeActions.front()->execute(edited));
    return jsonOf(document);
  }

  std::string effectOfTheRead() {
    const Document document = parsed(kReadDocument);
    std::string text;
    Lookups lookups;
    EXPECT_TRUE(context.readActions.front()->execute(document, text, lookups));
    return text;
  }

  std::string effect() {
    switch (GetParam().expectation.place) {
      case Place::edits:
        return effectOfTheEdit();
      case Place::removals:
        return effectOfTheRemoval();
      case Place::reads:
        return effectOfTheRead();
      case Place::file:
        break;
    }
    return context.filePath + (context.displayResult ? " displayed" : "");
  }

  bool succeeded = false;
  ToolContext context;
  Printed printed;
};

TEST_P(OptionForm, FillsItsPlaceAndNoOther) {
  const Expectation& expectation = GetParam().expectation;
  parse(expectation.arguments.size());
  ASSERT_TRUE(succeeded);
  EXPECT_EQ(printed.output + printed.errors, "");
  ASSERT_EQ(context.editActions.size(), expectation.place == Place::edits ? 1U : 0U);
  ASSERT_EQ(context.removeActions.size(), expectation.place == Place::removals ? 1U : 0U);
  ASSERT_EQ(context.readActions.size(), expectation.place == Place::reads ? 1U : 0U);
  EXPECT_EQ(context.filePath.empty(), expectation.place != Place::file);
  EXPECT_EQ(effect(), expectation.effect);
  const bool loadsAFile = expectation.arguments.back() == "no/such/file";
  EXPECT_EQ(printed.errors, loadsAFile ? "Could not open document: no/such/file\n" : "");
}

TEST_P(OptionForm, IsRefusedWithoutEachRequiredArgument) {
  for (std::size_t count = 0; count < GetParam().expectation.required; ++count) {
    SCOPED_TRACE(count);
    parse(count);
    EXPECT_FALSE(succeeded);
    EXPECT_EQ(printed.output, "Error: Error: missing argument(s) after " + GetParam().form + "\n");
    EXPECT_EQ(printed.errors, "");
    EXPECT_TRUE(context.editActions.empty() && context.removeActions.empty() && context.readActions.empty());
    EXPECT_EQ(context.filePath, "");
  }
}

TEST_P(OptionForm, HasItsRowInTheTable) {
  const Option* option = findOption(GetParam().form);
  ASSERT_NE(option, nullptr);
  EXPECT_EQ(option->longForm, GetParam().expectation.longForm);
  EXPECT_EQ(option->shortForm, GetParam().expectation.shortForm);
  EXPECT_NE(option->addTo, nullptr);
}

INSTANTIATE_TEST_SUITE_P(OptionTable, OptionForm, testing::ValuesIn(formRows()), rowName<FormRow>);

}  // namespace
}  // namespace kovalt::test
