#include "app/option_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "app/parse_arguments.h"
#include "support/capture.h"
#include "support/texts.h"

namespace kovalt::test {
namespace {

/// Both forms of every option.
Texts allForms() {
  Texts forms;
  for (const Option& option : kOptionTable) {
    forms.emplace_back(option.longForm);
    forms.emplace_back(option.shortForm);
  }
  return forms;
}

std::string withLetters(std::string text, int (*convert)(int)) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [&](unsigned char letter) { return static_cast<char>(convert(letter)); });
  return text;
}

/// The fewest arguments of an option: only the values of an added array may be missing.
std::size_t requiredArguments(const Option& option) {
  const FurtherArguments& further = option.further;
  const bool areOptional = further.isList && further.kind != ArgumentKind::field;
  return further.kind == ArgumentKind::none || areOptional ? 1 : 2;
}

TEST(OptionTable, HasLongFormsWithTwoDashesAndShortFormsWithOne) {
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

TEST(FindOption, FindsOnlyExactForms) {
  const Texts forms = allForms();
  Texts others = {"", "-", "--", "---", "-h", "--help", "--version", "addString", "as", "f"};
  for (const std::string& form : forms) {
    others.insert(others.end(),
                  {form + form, form + " ", " " + form, form + "=", form + "s", form + std::string(1, '\0'), "-" + form,
                   form.substr(1), form.substr(0, form.size() - 1), withLetters(form, std::toupper),
                   withLetters(form, std::tolower)});
  }
  for (const std::string& other : others) {
    // A form without its last letter may be another form.
    EXPECT_EQ(findOption(other) != nullptr, std::count(forms.begin(), forms.end(), other) == 1) << other;
  }
}

TEST(ParseArguments, RejectsEachOptionWithTooFewArguments) {
  for (const Option& option : kOptionTable) {
    for (const std::string_view form : {option.longForm, option.shortForm}) {
      Texts arguments = {"Kovalt", std::string(form)};
      for (; arguments.size() < 2 + requiredArguments(option); arguments.emplace_back("a")) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const std::vector<const char*> pointers = pointersTo(arguments);
        ToolContext context;
        const Printed printed =
            capture([&] { EXPECT_FALSE(parseArguments(context, static_cast<int>(pointers.size()), pointers.data())); });
        EXPECT_EQ(printed.output, "Error: Error: missing argument(s) after " + std::string(form) + "\n");
        EXPECT_EQ(printed.errors, "");
      }
    }
  }
}

}  // namespace
}  // namespace kovalt::test
