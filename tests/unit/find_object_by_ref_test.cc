#include "json/path/find_object_by_ref.h"

#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

/// The index of the selected element, or how its lack is reported.
constexpr int kNotFound = -1;
constexpr int kNotFoundAndExplained = -2;

struct SelectionRow : Row {
  std::string json;
  std::string refKey;
  std::string refValue;
  int expected;
};

std::string expectedErrors(const SelectionRow& row) {
  if (row.expected >= 0) {
    return "";
  }
  std::string notFound = "Kovalt path not found with refKey=refValue \"" + row.refKey + "=" + row.refValue + "\"\n";
  if (row.expected == kNotFound) {
    return notFound;
  }
  return notFound +
         "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
         "refKey "
         "must be a bool/number/string/array of numbers/strings.\n";
}

std::vector<SelectionRow> walkRows() {
  return {
      {{"first_element"}, R"([{"id":"a"},{"id":"b"}])", "id", "a", 0},
      {{"last_element"}, R"([{"id":"a"},{"id":"b"}])", "id", "b", 1},
      {{"first_of_two_matches"}, R"([{"id":"b"},{"id":"a","n":1},{"id":"a","n":2}])", "id", "a", 1},
      {{"no_match"}, R"([{"id":"a"},{"id":"b"}])", "id", "c", kNotFound},
      {{"elements_without_the_key_are_passed"}, R"([{},{"x":"a"},{"id":"a"}])", "id", "a", 2},
      {{"no_element_with_the_key"}, R"([{},{"x":"a"}])", "id", "a", kNotFound},
      {{"empty_array"}, "[]", "id", "a", kNotFound},
      {{"first_member_of_the_key_counts"}, R"([{"id":"b","id":"a"},{"id":"a","id":"b"}])", "id", "a", 1},
      {{"key_is_compared_as_bytes"}, R"([{"Id":"a"},{"id ":"a"},{"i":"a"}])", "id", "a", kNotFound},
      {{"key_behind_a_nul"}, R"([{"id\u0000x":"a"},{"id":"b"}])", "id", "a", kNotFound},
      {{"empty_key"}, R"([{"id":"x"},{"":"x"}])", "", "x", 1},
      {{"empty_key_missing"}, R"([{"id":"x"}])", "", "x", kNotFound},
      {{"dot_in_the_key"}, R"([{"a.b":"x"}])", "a.b", "x", 0},

      // An array of something else.
      {{"non_object_first"}, R"([3,{"id":1}])", "id", "1", kNotFoundAndExplained},
      {{"non_object_behind_a_miss"}, R"([{"id":2},null,{"id":1}])", "id", "1", kNotFoundAndExplained},
      {{"non_object_behind_an_element_without_the_key"}, R"([{},"x",{"id":1}])", "id", "1", kNotFoundAndExplained},
      {{"non_object_behind_a_match"}, R"([{"id":1},3])", "id", "1", 0},
      {{"array_of_arrays"}, R"([[{"id":1}]])", "id", "1", kNotFoundAndExplained},
      {{"array_of_strings"}, R"(["id"])", "id", "id", kNotFoundAndExplained},

      // No array at all.
      {{"object"}, R"({"id":1})", "id", "1", kNotFound},
      {{"object_of_objects"}, R"({"0":{"id":1}})", "id", "1", kNotFound},
      {{"string"}, R"("id=1")", "id", "1", kNotFound},
      {{"number"}, "1", "id", "1", kNotFound},
      {{"true_itself"}, "true", "id", "true", kNotFound},
      {{"false_itself"}, "false", "id", "false", kNotFound},
      {{"null_itself"}, "null", "id", "null", kNotFound},
  };
}

std::vector<SelectionRow> typeRows() {
  return {
      // Booleans.
      {{"true_by_its_word"}, R"([{"v":false},{"v":true}])", "v", "true", 1},
      {{"false_by_its_word"}, R"([{"v":true},{"v":false}])", "v", "false", 1},
      {{"boolean_by_1"}, R"([{"v":true}])", "v", "1", kNotFound},
      {{"boolean_by_0"}, R"([{"v":false}])", "v", "0", kNotFound},
      {{"boolean_by_a_capital"}, R"([{"v":true}])", "v", "True", kNotFound},
      {{"boolean_by_yes"}, R"([{"v":true}])", "v", "yes", kNotFound},
      {{"boolean_by_nothing"}, R"([{"v":false}])", "v", "", kNotFound},
      {{"boolean_by_a_beginning"}, R"([{"v":true}])", "v", "tru", kNotFound},

      // Numbers, by the text that they are written with.
      {{"integer"}, R"([{"v":4},{"v":5}])", "v", "5", 1},
      {{"integer_by_a_fraction"}, R"([{"v":5}])", "v", "5.0", kNotFound},
      {{"integer_by_leading_zero"}, R"([{"v":5}])", "v", "05", kNotFound},
      {{"integer_by_plus_sign"}, R"([{"v":5}])", "v", "+5", kNotFound},
      {{"integer_by_a_beginning"}, R"([{"v":55}])", "v", "5", kNotFound},
      {{"integer_by_more_digits"}, R"([{"v":5}])", "v", "55", kNotFound},
      {{"integer_by_blanks"}, R"([{"v":5}])", "v", " 5", kNotFound},
      {{"integer_by_nothing"}, R"([{"v":0}])", "v", "", kNotFound},
      {{"negative_integer"}, R"([{"v":5},{"v":-5}])", "v", "-5", 1},
      {{"zero"}, R"([{"v":0}])", "v", "0", 0},
      {{"largest_integer"}, R"([{"v":18446744073709551615}])", "v", "18446744073709551615", 0},
      {{"smallest_integer"}, R"([{"v":-9223372036854775808}])", "v", "-9223372036854775808", 0},
      {{"fraction"}, R"([{"v":2.5}])", "v", "2.5", 0},
      {{"fraction_written_longer"}, R"([{"v":2.50}])", "v", "2.5", 0},
      {{"fraction_of_six_places"}, R"([{"v":0.412993},{"v":0.412994}])", "v", "0.412994", 1},
      {{"fraction_of_six_places_in_an_array"}, R"([{"v":1},{"v":[7,176.359966]}])", "v", "176.359966", 1},
      {{"fraction_by_longer_text"}, R"([{"v":2.5}])", "v", "2.50", kNotFound},
      {{"whole_fraction"}, R"([{"v":3.0}])", "v", "3.0", 0},
      {{"whole_fraction_by_an_integer"}, R"([{"v":3.0}])", "v", "3", kNotFound},
      {{"exponent_by_its_digits"}, R"([{"v":1e2}])", "v", "100.0", 0},
      {{"exponent_as_in_the_file"}, R"([{"v":1e2}])", "v", "1e2", kNotFound},
      {{"negative_zero"}, R"([{"v":-0.0}])", "v", "-0.0", 0},

      // Strings.
      {{"string_by_its_bytes"}, R"([{"v":"alpha"}])", "v", "alpha", 0},
      {{"string_of_digits"}, R"([{"v":"5"}])", "v", "5", 0},
      {{"string_true"}, R"([{"v":"true"}])", "v", "true", 0},
      {{"string_with_equals_signs"}, R"([{"v":"a=b"}])", "v", "a=b", 0},
      {{"string_in_other_case"}, R"([{"v":"Alpha"}])", "v", "alpha", kNotFound},
      {{"string_by_a_beginning"}, R"([{"v":"alphabet"}])", "v", "alpha", kNotFound},
      {{"string_by_more"}, R"([{"v":"alpha"}])", "v", "alphabet", kNotFound},
      {{"string_with_blanks"}, R"([{"v":"alpha "}])", "v", "alpha", kNotFound},
      {{"string_by_its_quoted_form"}, R"([{"v":"alpha"}])", "v", "\"alpha\"", kNotFound},
      {{"string_by_an_escape"}, R"([{"v":"a\nb"}])", "v", R"(a\nb)", kNotFound},
      {{"string_with_a_line_end"}, R"([{"v":"a\nb"}])", "v", "a\nb", 0},
      {{"string_beyond_ascii"}, R"([{"v":"gr\u00f6\u00dfe"}])", "v", "größe", 0},
      {{"empty_string"}, R"([{"v":"x"},{"v":""}])", "v", "", 1},
      {{"string_up_to_its_nul"}, R"([{"v":"a\u0000b"}])", "v", "a", 0},
      {{"string_that_begins_with_a_nul"}, R"([{"v":"\u0000b"}])", "v", "", 0},
      {{"string_beyond_its_nul"}, R"([{"v":"a\u0000b"}])", "v", "a\0b"s, kNotFound},

      // Arrays, by any item.
      {{"array_of_strings"}, R"([{"v":["red"]},{"v":["blue","red"]}])", "v", "blue", 1},
      {{"array_of_numbers"}, R"([{"v":[1,2]},{"v":[3,4]}])", "v", "4", 1},
      {{"array_number_as_text"}, R"([{"v":[7.0]}])", "v", "7", kNotFound},
      {{"array_string_up_to_its_nul"}, R"([{"v":["a\u0000b"]}])", "v", "a", 0},
      {{"array_of_both"}, R"([{"v":["1",2]}])", "v", "2", 0},
      {{"array_without_a_match"}, R"([{"v":["red",1]}])", "v", "blue", kNotFound},
      {{"empty_array_member"}, R"([{"v":[]}])", "v", "", kNotFound},
      {{"array_as_text"}, R"([{"v":[1,2]}])", "v", "[1,2]", kNotFound},
      {{"true_in_an_array"}, R"([{"v":[true,"blue"]}])", "v", "true", kNotFoundAndExplained},
      {{"false_in_an_array"}, R"([{"v":[false]}])", "v", "false", kNotFoundAndExplained},
      {{"null_in_an_array"}, R"([{"v":[null]}])", "v", "null", kNotFoundAndExplained},
      {{"object_in_an_array"}, R"([{"v":[{"v":"red"}]}])", "v", "red", kNotFoundAndExplained},
      {{"array_in_an_array"}, R"([{"v":[["red"]]}])", "v", "red", kNotFoundAndExplained},
      {{"match_behind_a_bad_item"}, R"([{"v":[true,null,"red"]}])", "v", "red", 0},
      {{"match_before_a_bad_item"}, R"([{"v":["red",{}]}])", "v", "red", 0},
      {{"bad_item_does_not_end_the_walk"}, R"([{"v":[true]},{"v":"red"}])", "v", "red", 1},
      {{"bad_item_then_no_match"}, R"([{"v":[true]},{"v":"blue"},{}])", "v", "red", kNotFoundAndExplained},
      {{"bad_item_then_null"}, R"([{"v":[true]},{"v":null}])", "v", "red", kNotFoundAndExplained},

      // Null and objects end the walk.
      {{"null_member"}, R"([{"v":null}])", "v", "null", kNotFoundAndExplained},
      {{"null_member_before_a_match"}, R"([{"v":null},{"v":"x"}])", "v", "x", kNotFoundAndExplained},
      {{"null_member_behind_a_match"}, R"([{"v":"x"},{"v":null}])", "v", "x", 0},
      {{"object_member"}, R"([{"v":{}}])", "v", "{}", kNotFoundAndExplained},
      {{"object_member_before_a_match"}, R"([{"v":{"x":1}},{"v":"x"}])", "v", "x", kNotFoundAndExplained},
      {{"object_member_behind_a_miss"}, R"([{"v":"y"},{"v":{}}])", "v", "x", kNotFoundAndExplained},
  };
}

class Selection : public testing::TestWithParam<SelectionRow> {};

TEST_P(Selection, FindsTheElementOrReports) {
  const SelectionRow& row = GetParam();
  const Document document = parsed(row.json);
  const Value* found = nullptr;
  const Printed printed = capture([&] { found = findObjectByRef(&document, row.refKey, row.refValue); });
  const Value* expected = row.expected >= 0 ? &document[static_cast<rapidjson::SizeType>(row.expected)] : nullptr;
  EXPECT_EQ(found, expected);
  EXPECT_EQ(printed.errors, expectedErrors(row));
  EXPECT_EQ(printed.output, "");
}

INSTANTIATE_TEST_SUITE_P(Walk, Selection, testing::ValuesIn(walkRows()), rowName<SelectionRow>);
INSTANTIATE_TEST_SUITE_P(Types, Selection, testing::ValuesIn(typeRows()), rowName<SelectionRow>);

TEST(FindObjectByRef, ReportsNothingReachedAsNotFound) {
  const Value* found = nullptr;
  const Printed printed = capture([&] { found = findObjectByRef(nullptr, "id", "a=b"); });
  EXPECT_EQ(found, nullptr);
  EXPECT_EQ(printed.errors, "Kovalt path not found with refKey=refValue \"id=a=b\"\n");
  EXPECT_EQ(printed.output, "");
}

}  // namespace
}  // namespace kovalt::test
