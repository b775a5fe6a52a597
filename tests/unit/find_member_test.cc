#include <gtest/gtest.h>

#include <optional>

#include "json/member_finder.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

struct MemberRow : Row {
  std::string json;
  std::string member;
  std::optional<std::string> found;
};

std::vector<MemberRow> memberRows() {
  return {
      {{"only_member"}, R"({"a":1})", "a", "1"},
      {{"last_of_three"}, R"({"a":1,"b":2,"c":3})", "c", "3"},
      {{"container"}, R"({"a":{"b":[1,2]}})", "a", R"({"b":[1,2]})"},
      {{"null_is_a_value"}, R"({"a":null})", "a", "null"},
      {{"missing"}, R"({"a":1})", "b", std::nullopt},
      {{"empty_object"}, "{}", "a", std::nullopt},
      {{"not_inside_members"}, R"({"a":{"b":1}})", "b", std::nullopt},
      {{"first_of_two"}, R"({"a":1,"a":2})", "a", "1"},
      {{"first_of_three_apart"}, R"({"b":0,"a":"x","c":1,"a":"y","a":"z"})", "a", R"("x")"},
      {{"empty_name"}, R"({"a":1,"":2})", "", "2"},
      {{"empty_name_missing"}, R"({"a":1})", "", std::nullopt},
      {{"letter_case"}, R"({"A":1,"a":2})", "a", "2"},
      {{"name_that_begins_another"}, R"({"ab":1,"a":2})", "a", "2"},
      {{"beginning_of_a_name"}, R"({"ab":1})", "a", std::nullopt},
      {{"name_and_a_tail"}, R"({"a":1})", "ab", std::nullopt},
      {{"blanks_count"}, R"({"a ":1})", "a", std::nullopt},
      {{"dots_and_equals_signs_are_plain"}, R"({"a.b=c":1})", "a.b=c", "1"},
      {{"digits_name_a_member"}, R"({"1":"x","0":"y"})", "0", R"("y")"},
      {{"beyond_ascii"}, R"({"größe":1})", "größe", "1"},
      {{"escape_is_its_character"}, R"({"\u0061":1})", "a", "1"},
      {{"other_form_of_a_letter"}, R"({"\u00e4":1})", "a\xCC\x88", std::nullopt},
      {{"name_with_a_nul"}, R"({"a":1,"a\u0000b":2})", "a\0b"s, "2"},
      {{"name_up_to_a_nul"}, R"({"a\u0000b":2})", "a", std::nullopt},
      {{"names_that_differ_behind_a_nul"}, R"({"a\u0000b":1,"a\u0000c":2})", "a\0c"s, "2"},
      {{"name_of_a_nul"}, R"({"":1,"\u0000":2})", "\0"s, "2"},
      {{"long_name"}, "{\"" + std::string(100000, 'n') + "\":1}", std::string(100000, 'n'), "1"},
      {{"in_an_array"}, R"(["a"])", "a", std::nullopt},
      {{"in_an_array_of_objects"}, R"([{"a":1}])", "a", std::nullopt},
      {{"in_an_empty_array"}, "[]", "", std::nullopt},
      {{"in_a_string"}, R"("a")", "a", std::nullopt},
      {{"in_a_number"}, "1", "1", std::nullopt},
      {{"in_true"}, "true", "true", std::nullopt},
      {{"in_false"}, "false", "false", std::nullopt},
      {{"in_null"}, "null", "null", std::nullopt},
  };
}

class MemberByName : public testing::TestWithParam<MemberRow> {};

TEST_P(MemberByName, IsFoundOrNot) {
  const MemberRow& row = GetParam();
  const Document document = parsed(row.json);
  const Value* found = findMember(document, row.member);
  ASSERT_EQ(found != nullptr, row.found.has_value());
  if (found != nullptr) {
    EXPECT_EQ(jsonOf(*found), *row.found);
  }
}

INSTANTIATE_TEST_SUITE_P(FindMember, MemberByName, testing::ValuesIn(memberRows()), rowName<MemberRow>);

TEST(FindMember, ReturnsTheValueInTheDocument) {
  const Document document = parsed(R"({"a":1,"b":2,"a":3})");
  EXPECT_EQ(findMember(document, "a"), &document.MemberBegin()->value);
}

TEST(FindMember, LooksAtNoByteBehindTheName) {
  const std::string_view text = "abc";
  const Document document = parsed(R"({"abc":1,"ab":2})");
  const Value* found = findMember(document, text.substr(0, 2));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->GetInt(), 2);
}

}  // namespace
}  // namespace kovalt::test
