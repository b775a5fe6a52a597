// The memory of the source of a merge, and merges of many members. Merging and MergingClashes have small merges.

#include "actions/edit/merge_value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

#include "support/json_text.h"

namespace kovalt::test {
namespace {

/// Whether everything that could be moved out of `value` was moved.
bool isEmptied(const Value& value) {
  if (value.IsArray()) {
    return std::all_of(value.Begin(), value.End(), isEmptied);
  }
  if (value.IsObject()) {
    return std::all_of(value.MemberBegin(), value.MemberEnd(),
                       [](const Value::Member& member) { return isEmptied(member.value); });
  }
  return value.IsNull();
}

/// Merges the value of one text into that of another.
class Merge {
 public:
  Merge(const std::string& target, const std::string& source)
      : target_(parsed(target)), source_(parsedInto(source, target_.GetAllocator())) {}

  void run() { mergeValue(target_, source_, edited_); }

  [[nodiscard]] const Value& target() const { return target_; }
  [[nodiscard]] const Value& source() const { return source_; }

 private:
  Document target_;
  Value source_;
  EditedDocument edited_{target_};
};

TEST(MergeValue, MovesValuesAndLeavesEmptiedMembers) {
  Merge merge(R"({"l":[0],"p":{"q":1}})",
              R"({"a":"a text that is too long to be stored inside a value","o":{"x":1},"l":[1],"p":{"q":2,"r":[3]}})");
  const char* text = merge.source()["a"].GetString();
  const Value* inner = &merge.source()["o"].MemberBegin()->value;
  merge.run();
  EXPECT_EQ(merge.target()["a"].GetString(), text);
  EXPECT_EQ(&merge.target()["o"].MemberBegin()->value, inner);
  ASSERT_TRUE(merge.source().IsObject());
  EXPECT_TRUE(isEmptied(merge.source()));
}

// Merges of many members use an index. Their result must be that of a merge without one.

/// Names and numbers in order. Names may repeat.
using Members = std::vector<std::pair<std::string, std::uint32_t>>;

std::string membersText(const Members& members) {
  std::string text = "{";
  for (const auto& [name, number] : members) {
    text += (text.size() > 1 ? ",\"" : "\"") + name + "\":" + std::to_string(number);
  }
  return text + '}';
}

/// Random members with at most `nameCount` different names, the same in every run.
Members makeMembers(std::size_t count, std::uint32_t nameCount, std::uint32_t seed) {
  Members members;
  std::uint32_t state = seed;
  for (std::size_t i = 0; i < count; ++i) {
    state = state * 1664525U + 1013904223U;
    members.emplace_back("n" + std::to_string((state >> 8U) % nameCount), state >> 16U);
  }
  return members;
}

Members mergedWithoutIndex(Members target, const Members& source) {
  for (const auto& member : source) {
    const auto existing =
        std::find_if(target.begin(), target.end(), [&](const auto& other) { return other.first == member.first; });
    if (existing == target.end()) {
      target.push_back(member);
    } else {
      existing->second = member.second;
    }
  }
  return target;
}

class ManyMembers : public testing::TestWithParam<std::tuple<std::size_t, std::size_t>> {};

TEST_P(ManyMembers, AreMergedAsWithoutAnIndex) {
  const auto [targetCount, sourceCount] = GetParam();
  const auto nameCount = static_cast<std::uint32_t>(targetCount + sourceCount + 1);
  const Members target = makeMembers(targetCount, nameCount, 1);
  const Members source = makeMembers(sourceCount, nameCount, 2);
  Merge merge(membersText(target), membersText(source));
  merge.run();
  EXPECT_TRUE(jsonOf(merge.target()) == membersText(mergedWithoutIndex(target, source)));
}

TEST_P(ManyMembers, WithOneNameAreMergedAsWithoutAnIndex) {
  const auto [targetCount, sourceCount] = GetParam();
  const Members target = makeMembers(targetCount, 1, 1);
  const Members source = makeMembers(sourceCount, 1, 2);
  Merge merge(membersText(target), membersText(source));
  merge.run();
  EXPECT_TRUE(jsonOf(merge.target()) == membersText(mergedWithoutIndex(target, source)));
}

INSTANTIATE_TEST_SUITE_P(MergeValue, ManyMembers,
                         testing::Combine(testing::Values(0U, 1U, 7U, 8U, 9U, 31U, 32U, 33U, 1000U),
                                          testing::Values(1U, 7U, 8U, 9U, 31U, 32U, 33U, 1000U)));

}  // namespace
}  // namespace kovalt::test
