// Compares the options in the manual page with the option table.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "app/option_table.h"

namespace kovalt::test {
namespace {

/// Returns the name of an argument in the manual page.
std::string nameInManual(ArgumentKind kind) {
  static const std::map<ArgumentKind, std::string> names = {
      {ArgumentKind::keyPath, "_keypath_"},   {ArgumentKind::field, "_field_"}, {ArgumentKind::value, "_value_"},
      {ArgumentKind::booleanWord, "_value_"}, {ArgumentKind::file, "_file_"},
  };
  return names.at(kind);
}

/// Returns the arguments of an option as the manual page shows them.
std::string argumentsInManual(const Option& option) {
  std::string arguments = nameInManual(option.first);
  if (option.further.kind == ArgumentKind::none) {
    return arguments;
  }
  const std::string further = nameInManual(option.further.kind) + (option.further.isList ? "..." : "");
  arguments += option.requiredArguments == 1 ? " [" + further + "]" : " " + further;
  return option.further.endsInSeparators ? arguments + " _separators_" : arguments;
}

std::string lineInManual(const Option& option) {
  return "*" + std::string(option.longForm) + "*, *" + std::string(option.shortForm) + "* " + argumentsInManual(option);
}

/// Returns the lines of the page that introduce an option.
std::vector<std::string> optionLinesOfManual() {
  std::ifstream source(KOVALT_MANUAL_SOURCE);
  std::vector<std::string> lines;
  for (std::string line; std::getline(source, line);) {
    if (line.rfind("*--", 0) == 0 && line.find("*, ") == line.find('*', 1)) {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST(ManualOptions, AreThoseOfTheTable) {
  std::vector<std::string> expected;
  std::transform(kOptionTable.begin(), kOptionTable.end(), std::back_inserter(expected), lineInManual);
  std::vector<std::string> listed = optionLinesOfManual();
  std::sort(expected.begin(), expected.end());
  std::sort(listed.begin(), listed.end());
  EXPECT_EQ(listed, expected);
}

}  // namespace
}  // namespace kovalt::test
