// Registers every row of every table as a test, and runs them.

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "tool_call.h"

namespace {

using kovalt::test::Table;
using kovalt::test::ToolCall;

class RowTest : public testing::Test {
 public:
  explicit RowTest(ToolCall row) : row_(std::move(row)) {}

 private:
  void TestBody() override { row_.check(); }

  ToolCall row_;
};

/// Throws std::logic_error if two rows of a table have the same name, or if a table has no rows.
void addTests(const Table& table) {
  std::set<std::string> names;
  for (const ToolCall& row : table.rows()) {
    if (!names.insert(row.name()).second) {
      throw std::logic_error("two rows " + row.name() + " in " + table.name());
    }
    testing::RegisterTest(table.name(), row.name().c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [row]() -> testing::Test* { return new RowTest(row); });
  }
  if (names.empty()) {
    throw std::logic_error(std::string("no row in ") + table.name());
  }
}

}  // namespace

// A wrong table aborts the program, which prints the reason.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  for (const Table& table : Table::all()) {
    addTests(table);
  }
  return RUN_ALL_TESTS();
}
