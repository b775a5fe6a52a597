#pragma once

// The names of rows in tables of tests.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kovalt::test {

/// A base for rows. The name says what the row checks, in letters, digits and underscores.
struct Row {
  std::string name;
};

/// Prints the name of a row; GoogleTest itself would print the bytes of the object.
inline std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

/// The name under which GoogleTest lists a row.
template <typename AnyRow>
std::string rowName(const testing::TestParamInfo<AnyRow>& info) {
  return info.param.name;
}

}  // namespace kovalt::test
