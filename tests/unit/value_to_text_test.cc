#include <gtest/gtest.h>

#include "json/write/write_value.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

struct TextRow : Row {
  std::string json;
  std::string compact;
  std::string pretty;
};

/// A row whose two texts are the same.
TextRow scalar(const std::string& name, const std::string& json, const std::string& text) {
  return {{name}, json, text, text};
}

std::vector<TextRow> scalarRows() {
  return {
      scalar("null", " null ", "null"),
      scalar("true_word", "true", "true"),
      scalar("false_word", "false", "false"),

      scalar("integer", "7", "7"),
      scalar("zero", "0", "0"),
      scalar("negative", "-7", "-7"),
      scalar("largest_int", "2147483647", "2147483647"),
      scalar("smallest_int", "-2147483648", "-2147483648"),
      scalar("largest_unsigned", "4294967295", "4294967295"),
      scalar("smallest_int64", "-9223372036854775808", "-9223372036854775808"),
      scalar("largest_uint64", "18446744073709551615", "18446744073709551615"),
      scalar("whole_double", "7.0", "7.0"),
      scalar("fraction", "2.5", "2.5"),
      scalar("fraction_written_longer", "2.500", "2.5"),
      scalar("a_tenth", "0.1", "0.1"),
      scalar("zero_double", "0.0", "0.0"),
      scalar("negative_zero_double", "-0.0", "-0.0"),
      scalar("exponent_of_a_small_number", "1e2", "100.0"),
      scalar("exponent_of_a_large_number", "1e300", "1e300"),
      scalar("exponent_of_a_tiny_number", "2.5e-300", "2.5e-300"),

      scalar("empty_string", R"("")", R"("")"),
      scalar("plain_string", R"("a b")", R"("a b")"),
      scalar("string_of_digits", R"("7")", R"("7")"),
      scalar("quotes_and_backslashes", R"("\"\\")", R"("\"\\")"),
      scalar("slash_is_not_escaped", R"("\/")", R"("/")"),
      scalar("short_escapes", R"("\b\f\n\r\t")", R"("\b\f\n\r\t")"),
      scalar("other_control_characters", R"("\u0001\u000b\u001f")", R"("\u0001\u000B\u001F")"),
      scalar("nul_in_a_string", R"("a\u0000b")", R"("a\u0000b")"),
      scalar("delete_is_not_escaped", R"("\u007f")", "\"\x7F\""),
      scalar("bytes_beyond_ascii_as_they_are", R"("gr\u00f6\u00dfe \u20ac \ud83d\ude00")",
             "\"größe \xE2\x82\xAC \xF0\x9F\x98\x80\""),
      scalar("bytes_that_are_no_utf_8_as_they_are", "\"\xFF\xC3\"", "\"\xFF\xC3\""),
  };
}

std::vector<TextRow> containerRows() {
  return {
      scalar("empty_object", "{ }", "{}"),
      scalar("empty_array", "[ ]", "[]"),
      {{"object"}, R"({"a": 1, "b": [true, null]})", R"({"a":1,"b":[true,null]})", R"({
    "a": 1,
    "b": [
        true,
        null
    ]
})"},
      {{"array"}, R"([1, "x", 2.0])", R"([1,"x",2.0])", R"([
    1,
    "x",
    2.0
])"},
      {{"empty_containers_inside"}, R"({"a": {}, "b": [], "c": [[], {}]})", R"({"a":{},"b":[],"c":[[],{}]})", R"({
    "a": {},
    "b": [],
    "c": [
        [],
        {}
    ]
})"},
      {{"nested_objects"}, R"({"a": {"b": {"c": "d"}}})", R"({"a":{"b":{"c":"d"}}})", R"({
    "a": {
        "b": {
            "c": "d"
        }
    }
})"},
      {{"nested_arrays"}, "[[1, [2]], 3]", "[[1,[2]],3]", R"([
    [
        1,
        [
            2
        ]
    ],
    3
])"},
      {{"duplicate_names_in_order"}, R"({"b": 1, "a": 2, "b": 3})", R"({"b":1,"a":2,"b":3})", R"({
    "b": 1,
    "a": 2,
    "b": 3
})"},
      {{"names_are_escaped"}, R"({"": 1, "a\"\n": 2})", R"({"":1,"a\"\n":2})", R"({
    "": 1,
    "a\"\n": 2
})"},
      {{"name_with_a_nul"}, R"({"a\u0000b": 1})", R"({"a\u0000b":1})", R"({
    "a\u0000b": 1
})"},
      {{"commas_and_colons_in_strings"}, R"(["a,b", "c: d"])", R"(["a,b","c: d"])", R"([
    "a,b",
    "c: d"
])"},
  };
}

class ValueText : public testing::TestWithParam<TextRow> {};

TEST_P(ValueText, IsCompact) { EXPECT_EQ(valueToText(parsed(GetParam().json), false), GetParam().compact); }

TEST_P(ValueText, IsIndentedByFourSpaces) { EXPECT_EQ(valueToText(parsed(GetParam().json), true), GetParam().pretty); }

TEST_P(ValueText, ReadAgainGivesTheSameText) {
  EXPECT_EQ(valueToText(parsed(valueToText(parsed(GetParam().json), false)), false), GetParam().compact);
  EXPECT_EQ(valueToText(parsed(valueToText(parsed(GetParam().json), true)), true), GetParam().pretty);
}

INSTANTIATE_TEST_SUITE_P(Scalars, ValueText, testing::ValuesIn(scalarRows()), rowName<TextRow>);
INSTANTIATE_TEST_SUITE_P(Containers, ValueText, testing::ValuesIn(containerRows()), rowName<TextRow>);

TEST(ValueToText, HasNoLimitOfDepth) {
  constexpr std::size_t kDepth = 200000;
  Document document;
  Value nested(rapidjson::kArrayType);
  for (std::size_t i = 1; i < kDepth; ++i) {
    Value outer(rapidjson::kArrayType);
    outer.PushBack(nested, document.GetAllocator());
    nested = std::move(outer);
  }
  EXPECT_TRUE(valueToText(nested, false) == std::string(kDepth, '[') + std::string(kDepth, ']'));
}

}  // namespace
}  // namespace kovalt::test
