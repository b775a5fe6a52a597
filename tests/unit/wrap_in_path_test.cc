#include "json/path/wrap_in_path.h"

#include <gtest/gtest.h>

namespace kovalt::test {
namespace {

TEST(WrapInPath, CopiesTheNamesOfThePath) {
  const KeyPath path("a.a step that is too long to be stored inside a value");
  Document document;
  const Value wrapped = wrapInPath(path, Value(1), document.GetAllocator());
  const Value::Member& outer = *wrapped.MemberBegin();
  const Value::Member& inner = *outer.value.MemberBegin();
  EXPECT_NE(outer.name.GetString(), path.steps().front().data());
  EXPECT_NE(inner.name.GetString(), path.steps().back().data());
  EXPECT_EQ(inner.value.GetInt(), 1);
}

}  // namespace
}  // namespace kovalt::test
