#pragma once

// What the rows of all tables share.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kovalt::test {

/// The start of every row: its idea, in letters, digits and underscores.
struct Row {
  std::string name;
};

/// Shows the row's name where GoogleTest would print its bytes.
inline std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

/// The name under which GoogleTest lists a row.
template <typename AnyRow>
std::string rowName(const testing::TestParamInfo<AnyRow>& info) {
  return info.param.name;
}

}  // namespace kovalt::test
