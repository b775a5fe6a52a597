#include "json/path/wrap_in_path.h"

#include <gtest/gtest.h>

#include <utility>

#include "json/path/resolve_key_path.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

struct WrapRow : Row {
  std::string path;
  std::string leaf;
  std::string wrapped;
};

std::vector<WrapRow> wrapRows() {
  return {
      {{"no_step_leaves_the_leaf"}, "", R"({"x":[1]})", R"({"x":[1]})"},
      {{"no_step_leaves_null"}, "", "null", "null"},
      {{"one_step"}, "a", "1", R"({"a":1})"},
      {{"first_step_is_outermost"}, "object1.object2.key", R"("v")", R"({"object1":{"object2":{"key":"v"}}})"},
      {{"null_leaf"}, "a.b", "null", R"({"a":{"b":null}})"},
      {{"container_leaf"}, "a", R"({"a":[{"b":[]}]})", R"({"a":{"a":[{"b":[]}]}})"},
      {{"equal_steps"}, "a.a.a", "true", R"({"a":{"a":{"a":true}}})"},
      {{"empty_steps"}, "a..b.", "1", R"({"a":{"":{"b":{"":1}}}})"},
      {{"lone_separator"}, ".", "1", R"({"":{"":1}})"},
      {{"digits_are_a_plain_name"}, "list.0", "1", R"({"list":{"0":1}})"},
      {{"quotes_in_a_step"}, "a\"b", "1", R"({"a\"b":1})"},
      {{"steps_beyond_ascii"}, "größe.\xE2\x82\xAC", "1", "{\"größe\":{\"\xE2\x82\xAC\":1}}"},
  };
}

class WrappedLeaf : public testing::TestWithParam<WrapRow> {};

TEST_P(WrappedLeaf, HasOneObjectForEachStep) {
  Document document;
  const Value wrapped = wrapInPath(KeyPath(GetParam().path, "."), parsedInto(GetParam().leaf, document.GetAllocator()),
                                   document.GetAllocator());
  EXPECT_EQ(jsonOf(wrapped), GetParam().wrapped);
}

TEST_P(WrappedLeaf, IsFoundAlongItsOwnPath) {
  const KeyPath path(GetParam().path, ".");
  Document document;
  Value wrapped = wrapInPath(path, parsedInto(GetParam().leaf, document.GetAllocator()), document.GetAllocator());
  Lookups lookups;
  const Value* leaf = resolveExisting(path, wrapped, lookups);
  ASSERT_NE(leaf, nullptr);
  EXPECT_EQ(jsonOf(*leaf), GetParam().leaf);
}

INSTANTIATE_TEST_SUITE_P(WrapInPath, WrappedLeaf, testing::ValuesIn(wrapRows()), rowName<WrapRow>);

TEST(WrapInPath, TakesASelectionAsAPlainName) {
  Document document;
  const Value wrapped = wrapInPath(KeyPath("list.name=x.v", "."), Value(1), document.GetAllocator());
  EXPECT_EQ(jsonOf(wrapped), R"({"list":{"name=x":{"v":1}}})");
}

TEST(WrapInPath, CopiesTheNamesOfThePath) {
  const KeyPath path("a.a step that is too long to be kept inside of a value", ".");
  Document document;
  const Value wrapped = wrapInPath(path, Value(1), document.GetAllocator());
  const Value::Member& outer = *wrapped.MemberBegin();
  const Value::Member& inner = *outer.value.MemberBegin();
  EXPECT_NE(outer.name.GetString(), path.steps().front().data());
  EXPECT_NE(inner.name.GetString(), path.steps().back().data());
}

TEST(WrapInPath, KeepsNulBytesOfTheSteps) {
  Document document;
  const KeyPath path(std::string_view("a\0b.c", 5), ".");
  Value wrapped = wrapInPath(path, Value(1), document.GetAllocator());
  EXPECT_EQ(jsonOf(wrapped), R"({"a\u0000b":{"c":1}})");
  Lookups lookups;
  EXPECT_NE(resolveExisting(path, wrapped, lookups), nullptr);
}

TEST(WrapInPath, NestsVeryDeep) {
  constexpr std::size_t kDepth = 50000;
  std::string text = "s";
  for (std::size_t i = 1; i < kDepth; ++i) {
    text += ".s";
  }
  const KeyPath path(text, ".");
  Document document;
  Value wrapped = wrapInPath(path, Value("leaf"), document.GetAllocator());
  Lookups lookups;
  const Value* leaf = resolveExisting(path, wrapped, lookups);
  ASSERT_NE(leaf, nullptr);
  EXPECT_STREQ(leaf->GetString(), "leaf");
}

}  // namespace
}  // namespace kovalt::test
