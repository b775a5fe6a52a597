// The options that the manual page lists, against the table of options.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include "app/option_table.h"

namespace kovalt::test {
namespace {

/// How the manual page writes the arguments of an option.
std::string argumentsInManual(ArgumentShape shape) {
  switch (shape) {
    case ArgumentShape::keyPath:
      return "_keypath_";
    case ArgumentShape::keyPathAndValue:
      return "_keypath_ _value_";
    case ArgumentShape::keyPathAndFile:
      return "_keypath_ _file_";
    case ArgumentShape::keyPathAndList:
      return "_keypath_ [_value_...]";
    case ArgumentShape::keyPathAndFields:
      return "_keypath_ _field_...";
    case ArgumentShape::keyPathFieldsAndSeparators:
      return "_keypath_ _field_... _separators_";
    case ArgumentShape::file:
    case ArgumentShape::workFile:
      return "_file_";
  }
  return "";
}

std::string lineInManual(const Option& option) {
  return "*" + std::string(option.longForm) + "*, *" + std::string(option.shortForm) + "* " +
         argumentsInManual(option.shape);
}

/// The lines of the page that head the description of an option.
std::vector<std::string> optionLinesOfManual() {
  const std::regex optionLine(R"(\*--\w+\*, .*)");
  std::ifstream source(KOVALT_MANUAL_SOURCE);
  std::vector<std::string> lines;
  for (std::string line; std::getline(source, line);) {
    if (std::regex_match(line, optionLine)) {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST(ManualOptions, AreThoseOfTheTable) {
  std::vector<std::string> expected;
  for (const Option& option : optionTable()) {
    expected.push_back(lineInManual(option));
  }
  std::vector<std::string> listed = optionLinesOfManual();
  std::sort(expected.begin(), expected.end());
  std::sort(listed.begin(), listed.end());
  EXPECT_EQ(listed, expected);
}

}  // namespace
}  // namespace kovalt::test
