// The settings of RapidJSON that the program depends on, in every build.

#include "json/document.h"

#include <gtest/gtest.h>

#include "support/json_text.h"

namespace kovalt::test {
namespace {

TEST(DocumentDeathTest, AssertsThatAValueIsAnObject) {
  const Value number(1);
  EXPECT_DEATH(number.MemberBegin(), "IsObject\\(\\)");
}

TEST(DocumentDeathTest, AssertsThatAValueIsAnArray) {
  const Value text("a");
  EXPECT_DEATH(text.Begin(), "IsArray\\(\\)");
}

TEST(DocumentDeathTest, AssertsThatAnIndexIsInRange) {
  const Document array = parsed("[1]");
  EXPECT_DEATH(array[1].IsNull(), "index < ");
}

TEST(Document, AllocatesChunksOf64KiB) {
  Document document;
  document.SetObject();
  document.AddMember("name", "value", document.GetAllocator());
  EXPECT_EQ(document.GetAllocator().Capacity(), 65536U);
}

}  // namespace
}  // namespace kovalt::test
