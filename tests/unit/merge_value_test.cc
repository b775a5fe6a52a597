#include "actions/edit/merge_value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

/// Whether `value` holds nothing any more that could have been moved out of it.
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

struct MergeRow : Row {
  std::string target;
  std::string source;
  std::string merged;
};

std::vector<MergeRow> orderRows() {
  return {
      {{"nothing_into_nothing"}, "{}", "{}", "{}"},
      {{"nothing_into_something"}, R"({"a":1,"b":[2]})", "{}", R"({"a":1,"b":[2]})"},
      {{"something_into_nothing"}, "{}", R"({"b":[2],"a":{"x":1}})", R"({"b":[2],"a":{"x":1}})"},
      {{"new_members_in_source_order"}, R"({"m":1})", R"({"z":2,"a":3,"n":4})", R"({"m":1,"z":2,"a":3,"n":4})"},
      {{"old_members_keep_their_places"},
       R"({"c":1,"b":2,"a":3})",
       R"({"a":6,"d":7,"c":4})",
       R"({"c":4,"b":2,"a":6,"d":7})"},
      {{"order_inside_objects"},
       R"({"o":{"c":1},"p":0})",
       R"({"o":{"z":2,"c":3,"a":4}})",
       R"({"o":{"c":3,"z":2,"a":4},"p":0})"},
      {{"objects_at_every_level"},
       R"({"a":{"b":{"c":1},"d":2}})",
       R"({"a":{"b":{"e":3},"f":{"g":4}}})",
       R"({"a":{"b":{"c":1,"e":3},"d":2,"f":{"g":4}}})"},
      {{"object_into_an_empty_one"}, R"({"a":{}})", R"({"a":{"b":1}})", R"({"a":{"b":1}})"},
      {{"empty_object_into_one"}, R"({"a":{"b":1}})", R"({"a":{}})", R"({"a":{"b":1}})"},
      {{"arrays_and_objects"},
       R"({"a":{"c":2},"l":[0]})",
       R"({"a":{"b":1},"l":[1]})",
       R"({"a":{"c":2,"b":1},"l":[0,1]})"},

      {{"arrays_are_concatenated"}, R"({"a":[1,2]})", R"({"a":[3,4]})", R"({"a":[1,2,3,4]})"},
      {{"equal_elements_are_kept"}, R"({"a":[1,2]})", R"({"a":[2,1]})", R"({"a":[1,2,2,1]})"},
      {{"array_into_an_empty_one"}, R"({"a":[]})", R"({"a":[1]})", R"({"a":[1]})"},
      {{"empty_array_into_one"}, R"({"a":[1]})", R"({"a":[]})", R"({"a":[1]})"},
      {{"elements_of_different_types"},
       R"({"a":[1]})",
       R"({"a":["x",null,{"b":1},[2]]})",
       R"({"a":[1,"x",null,{"b":1},[2]]})"},
      {{"elements_are_not_merged"},
       R"({"a":[{"b":1},[1]]})",
       R"({"a":[{"b":2},[2]]})",
       R"({"a":[{"b":1},[1],{"b":2},[2]]})"},

      {{"names_are_compared_as_bytes"}, R"({"a":1,"A":2})", R"({"A":3,"a ":4})", R"({"a":1,"A":3,"a ":4})"},
      {{"empty_name"}, R"({"":1})", R"({"":2,"a":3})", R"({"":2,"a":3})"},
      {{"name_that_begins_another"}, R"({"ab":1})", R"({"a":2,"abc":3})", R"({"ab":1,"a":2,"abc":3})"},
      {{"names_that_differ_behind_a_nul"},
       R"({"a":1,"a\u0000b":2})",
       R"({"a\u0000c":3,"a\u0000b":4,"a":5})",
       R"({"a":5,"a\u0000b":4,"a\u0000c":3})"},
      {{"dotted_name_is_no_path"}, R"({"a":{"b":1}})", R"({"a.b":2})", R"({"a":{"b":1},"a.b":2})"},
  };
}

std::vector<MergeRow> duplicateRows() {
  return {
      {{"first_of_two_in_the_target_counts"}, R"({"a":1,"b":2,"a":3})", R"({"a":4})", R"({"a":4,"b":2,"a":3})"},
      {{"second_of_two_in_the_target_may_differ"}, R"({"a":1,"a":"x"})", R"({"a":4})", R"({"a":4,"a":"x"})"},
      {{"scalars_in_the_source_replace_each_other"}, "{}", R"({"a":1,"b":2,"a":3})", R"({"a":3,"b":2})"},
      {{"arrays_in_the_source_are_concatenated"}, "{}", R"({"a":[1],"a":[2],"a":[3]})", R"({"a":[1,2,3]})"},
      {{"objects_in_the_source_are_merged"}, "{}", R"({"a":{"x":1},"a":{"y":2,"x":3}})", R"({"a":{"x":3,"y":2}})"},
      {{"both_in_the_source_meet_the_target"}, R"({"a":[0]})", R"({"a":[1],"a":[2]})", R"({"a":[0,1,2]})"},
      {{"two_in_the_source_and_two_in_the_target"},
       R"({"a":[0],"a":[9]})",
       R"({"a":[1],"a":[2]})",
       R"({"a":[0,1,2],"a":[9]})"},
      {{"inside_a_moved_object_they_stay"}, "{}", R"({"o":{"a":1,"a":2}})", R"({"o":{"a":1,"a":2}})"},
      {{"inside_a_merged_object_they_meet"}, R"({"o":{}})", R"({"o":{"a":1,"a":2}})", R"({"o":{"a":2}})"},
      {{"moved_object_then_merged"}, "{}", R"({"o":{"a":1,"a":2},"o":{"a":3,"b":4}})", R"({"o":{"a":3,"a":2,"b":4}})"},
      {{"inside_elements_they_stay"}, R"({"l":[]})", R"({"l":[{"a":1,"a":2}]})", R"({"l":[{"a":1,"a":2}]})"},
  };
}

std::vector<MergeRow> scalarRows() {
  return {
      {{"string_by_an_empty_one"}, R"({"a":"x"})", R"({"a":""})", R"({"a":""})"},
      {{"string_by_a_long_one"},
       R"({"a":"x"})",
       R"({"a":"much longer than what fits in place"})",
       R"({"a":"much longer than what fits in place"})"},
      {{"integer_by_a_double"}, R"({"a":1})", R"({"a":1.5})", R"({"a":1.5})"},
      {{"double_by_an_integer"}, R"({"a":1.5})", R"({"a":1})", R"({"a":1})"},
      {{"integer_by_a_negative_one"}, R"({"a":1})", R"({"a":-1})", R"({"a":-1})"},
      {{"small_integer_by_the_largest"},
       R"({"a":0})",
       R"({"a":18446744073709551615})",
       R"({"a":18446744073709551615})"},
      {{"largest_integer_by_the_smallest"},
       R"({"a":18446744073709551615})",
       R"({"a":-9223372036854775808})",
       R"({"a":-9223372036854775808})"},
      {{"equal_values"},
       R"({"a":1,"b":"x","c":true,"d":false,"e":null})",
       R"({"a":1,"b":"x","c":true,"d":false,"e":null})",
       R"({"a":1,"b":"x","c":true,"d":false,"e":null})"},
  };
}

class MergedObjects : public testing::TestWithParam<MergeRow> {};

TEST_P(MergedObjects, HoldWhatBothHeld) {
  Merge merge(GetParam().target, GetParam().source);
  const Printed printed = capture([&] { merge.run(); });
  EXPECT_EQ(jsonOf(merge.target()), GetParam().merged);
  EXPECT_EQ(printed.output + printed.errors, "");
}

TEST_P(MergedObjects, LeaveTheSourceEmptied) {
  Merge merge(GetParam().target, GetParam().source);
  merge.run();
  ASSERT_TRUE(merge.source().IsObject());
  EXPECT_TRUE(isEmptied(merge.source()));
}

INSTANTIATE_TEST_SUITE_P(Order, MergedObjects, testing::ValuesIn(orderRows()), rowName<MergeRow>);
INSTANTIATE_TEST_SUITE_P(Duplicates, MergedObjects, testing::ValuesIn(duplicateRows()), rowName<MergeRow>);
INSTANTIATE_TEST_SUITE_P(Scalars, MergedObjects, testing::ValuesIn(scalarRows()), rowName<MergeRow>);

TEST(MergeValue, MovesValuesInsteadOfCopyingThem) {
  Merge merge("{}", R"({"a":"a text that is too long to be kept inside of a value","o":{"x":1}})");
  const char* text = merge.source()["a"].GetString();
  const Value* inner = &merge.source()["o"].MemberBegin()->value;
  merge.run();
  EXPECT_EQ(merge.target()["a"].GetString(), text);
  EXPECT_EQ(&merge.target()["o"].MemberBegin()->value, inner);
}

// Every type against every type.

struct TypeRow : Row {
  std::string target;
  std::string source;
  std::string merged;
};

std::vector<TypeRow> types() {
  return {
      {{"null"}, "null", "null", "null"}, {{"false"}, "false", "false", "false"},
      {{"true"}, "true", "true", "true"}, {{"object"}, R"({"x":1})", R"({"y":2})", R"({"x":1,"y":2})"},
      {{"array"}, "[1]", "[2]", "[1,2]"}, {{"string"}, R"("s")", R"("t")", R"("t")"},
      {{"number"}, "1", "2.5", "2.5"},
  };
}

using TypePair = std::tuple<TypeRow, TypeRow>;

class TypesDeathTest : public testing::TestWithParam<TypePair> {};

TEST_P(TypesDeathTest, AgreeOrEndTheProcess) {
  const auto& [target, source] = GetParam();
  Merge merge(R"({"first":1,"k":)" + target.target + "}", R"({"k":)" + source.source + R"(,"last":2})");
  if (target.name == source.name) {
    merge.run();
    EXPECT_EQ(jsonOf(merge.target()), R"({"first":1,"k":)" + target.merged + R"(,"last":2})");
  } else {
    EXPECT_EXIT(merge.run(), testing::ExitedWithCode(1), testing::Eq("Incompatible types for key k\n"));
  }
}

std::string pairName(const testing::TestParamInfo<TypePair>& pair) {
  return std::get<0>(pair.param).name + "_meets_" + std::get<1>(pair.param).name;
}

INSTANTIATE_TEST_SUITE_P(MergeValue, TypesDeathTest,
                         testing::Combine(testing::ValuesIn(types()), testing::ValuesIn(types())), pairName);

struct ClashRow : Row {
  std::string target;
  std::string source;
  std::string key;
};

std::vector<ClashRow> clashRows() {
  return {
      {{"inner_name_is_told"}, R"({"o":{"p":{"k":1}}})", R"({"o":{"p":{"k":"x"}}})", "k"},
      {{"outer_name_is_told"}, R"({"o":"x"})", R"({"o":{"k":1}})", "o"},
      {{"first_clash_is_told"}, R"({"a":1,"b":1})", R"({"b":"x","a":"y"})", "b"},
      {{"clash_behind_merged_members"}, R"({"a":1,"b":1})", R"({"a":2,"c":3,"b":null})", "b"},
      {{"duplicates_in_the_source"}, "{}", R"({"k":1,"k":"x"})", "k"},
      {{"first_of_two_in_the_target"}, R"({"k":1,"k":"x"})", R"({"k":"y"})", "k"},
      {{"empty_name"}, R"({"":true})", R"({"":false})", ""},
      {{"name_with_blanks_and_quotes"}, R"({"a \"b\" %s":1})", R"({"a \"b\" %s":[]})", "a \"b\" %s"},
      {{"name_beyond_ascii"}, R"({"größe":1})", R"({"größe":"1"})", "größe"},
  };
}

class ClashDeathTest : public testing::TestWithParam<ClashRow> {};

TEST_P(ClashDeathTest, EndsTheProcessAtOnce) {
  Merge merge(GetParam().target, GetParam().source);
  EXPECT_EXIT(merge.run(), testing::ExitedWithCode(1),
              testing::Eq("Incompatible types for key " + GetParam().key + "\n"));
}

INSTANTIATE_TEST_SUITE_P(MergeValue, ClashDeathTest, testing::ValuesIn(clashRows()), rowName<ClashRow>);

TEST(MergeValueDeathTest, NeedsAnObjectAsSource) {
  for (const char* source : {"[]", "[1]", R"("s")", "1", "true", "null"}) {
    SCOPED_TRACE(source);
    Merge merge(R"({"a":1})", source);
    EXPECT_DEATH(merge.run(), "IsObject\\(\\)");
  }
}

TEST(MergeValueDeathTest, NeedsAnObjectAsTarget) {
  for (const char* target : {"[]", "[1]", R"("s")", "1", "true", "null"}) {
    SCOPED_TRACE(target);
    Merge merge(target, R"({"a":1})");
    EXPECT_DEATH(merge.run(), "IsObject\\(\\)");
  }
}

// Many members, so that no way of looking names up differs from going through them one by one.

/// Names and numbers in order; a name may stand there twice.
using Members = std::vector<std::pair<std::string, std::uint32_t>>;

std::string membersText(const Members& members) {
  std::string text = "{";
  for (const auto& [name, number] : members) {
    text += (text.size() > 1 ? ",\"" : "\"") + name + "\":" + std::to_string(number);
  }
  return text + '}';
}

/// Members with the given number of names to choose from, in an order that is the same in every run.
Members makeMembers(std::size_t count, std::uint32_t nameCount, std::uint32_t seed) {
  Members members;
  std::uint32_t state = seed;
  for (std::size_t i = 0; i < count; ++i) {
    state = state * 1664525U + 1013904223U;
    members.emplace_back("n" + std::to_string((state >> 8U) % nameCount), state >> 16U);
  }
  return members;
}

Members mergedOneByOne(Members target, const Members& source) {
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

TEST_P(ManyMembers, AreMergedAsOneByOne) {
  const auto [targetCount, sourceCount] = GetParam();
  const auto nameCount = static_cast<std::uint32_t>(targetCount + sourceCount + 1);
  const Members target = makeMembers(targetCount, nameCount, 1);
  const Members source = makeMembers(sourceCount, nameCount, 2);
  Merge merge(membersText(target), membersText(source));
  merge.run();
  EXPECT_TRUE(jsonOf(merge.target()) == membersText(mergedOneByOne(target, source)));
}

TEST_P(ManyMembers, OfOneNameAreMergedAsOneByOne) {
  const auto [targetCount, sourceCount] = GetParam();
  const Members target = makeMembers(targetCount, 1, 1);
  const Members source = makeMembers(sourceCount, 1, 2);
  Merge merge(membersText(target), membersText(source));
  merge.run();
  EXPECT_TRUE(jsonOf(merge.target()) == membersText(mergedOneByOne(target, source)));
}

INSTANTIATE_TEST_SUITE_P(MergeValue, ManyMembers,
                         testing::Combine(testing::Values(0U, 1U, 7U, 8U, 9U, 31U, 32U, 33U, 1000U),
                                          testing::Values(1U, 7U, 8U, 9U, 31U, 32U, 33U, 1000U)));

}  // namespace
}  // namespace kovalt::test
