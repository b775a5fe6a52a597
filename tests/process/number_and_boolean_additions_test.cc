// Additions of numbers and of booleans.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

/// The report of a rejected boolean; `value` is shown in small letters.
std::string rejected(const std::string& value) {
  return "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, " + value + " rejected.\n";
}

std::vector<ToolCall> numberRows() {
  return {
      ToolCall("number").call("--addNumber key 666").prints("{\n    \"key\": 666\n}\n"),
      ToolCall("number_short_form").call("-an key 666").prints("{\n    \"key\": 666\n}\n"),
      ToolCall("negative_number").call({"--addNumber", "k", "-5", "-r", ""}).prints("{\"k\":-5}\n"),
      ToolCall("number_with_a_plus_sign").call({"--addNumber", "k", "+7", "-r", ""}).prints("{\"k\":7}\n"),
      ToolCall("number_with_leading_whitespace")
          .call({"--addNumber", "k", " \t\n\v\f\r42", "-r", ""})
          .prints("{\"k\":42}\n"),
      ToolCall("number_with_whitespace_and_a_sign")
          .call({"--addNumber", "k", "  -42", "-r", ""})
          .prints("{\"k\":-42}\n"),
      ToolCall("number_stops_at_a_letter").call({"--addNumber", "k", "12abc", "-r", ""}).prints("{\"k\":12}\n"),
      ToolCall("number_stops_at_a_point").call({"--addNumber", "k", "3.9", "-r", ""}).prints("{\"k\":3}\n"),
      ToolCall("negative_number_stops_at_a_point").call({"--addNumber", "k", "-3.9", "-r", ""}).prints("{\"k\":-3}\n"),
      ToolCall("number_is_not_hexadecimal").call({"--addNumber", "k", "0x1F", "-r", ""}).prints("{\"k\":0}\n"),
      ToolCall("number_is_not_octal").call({"--addNumber", "k", "010", "-r", ""}).prints("{\"k\":10}\n"),
      ToolCall("number_has_no_exponent").call({"--addNumber", "k", "1e3", "-r", ""}).prints("{\"k\":1}\n"),
      ToolCall("number_stops_at_a_space").call({"--addNumber", "k", "1 2", "-r", ""}).prints("{\"k\":1}\n"),
      ToolCall("number_minus_zero").call({"--addNumber", "k", "-0", "-r", ""}).prints("{\"k\":0}\n"),
      ToolCall("largest_number").call({"--addNumber", "k", "2147483647", "-r", ""}).prints("{\"k\":2147483647}\n"),
      ToolCall("smallest_number").call({"--addNumber", "k", "-2147483648", "-r", ""}).prints("{\"k\":-2147483648}\n"),
      ToolCall("number_above_the_range").call("--addNumber k 2147483648").aborts(),
      ToolCall("number_below_the_range").call("--addNumber k -2147483649").aborts(),
      ToolCall("number_far_above_the_range").call("--addNumber k 99999999999999999999").aborts(),
      ToolCall("number_without_digits").call("--addNumber k abc").aborts(),
      ToolCall("empty_number").call({"--addNumber", "k", ""}).aborts(),
      ToolCall("number_of_a_sign_alone").call("--addNumber k -").aborts(),
      ToolCall("number_with_two_signs").call("--addNumber k --5").aborts(),
      ToolCall("number_of_whitespace").call({"--addNumber", "k", " "}).aborts(),
      ToolCall("bad_number_for_an_existing_key")
          .given("f.json", R"({"k":1})")
          .call("--file f.json --addNumber k abc")
          .aborts(),
      ToolCall("bad_number_ends_before_any_output")
          .given("f.json", R"({"k":1})")
          .call("--fileDisplay f.json --addString l v --addNumber n x --read k")
          .aborts(),
      ToolCall("bad_number_counts_only_in_its_turn")
          .call("--addBoolean b maybe --addNumber n x")
          .reports(rejected("maybe"))
          .aborts(),
      ToolCall("bad_number_is_not_converted_while_parsing")
          .call("--addNumber n x stray")
          .prints("Error: invalid argument stray\n")
          .exits(1),
      ToolCall("number_replaces_a_floating_number")
          .given("f.json", R"({"k":1.5})")
          .call("--file f.json --addNumber k 2")
          .leaves("f.json", "{\n  \"k\": 2\n}"),
      ToolCall("number_replaces_an_array")
          .given("f.json", R"({"k":[1]})")
          .call("--file f.json --addNumber k 2")
          .leaves("f.json", "{\n  \"k\": 2\n}"),
      ToolCall("number_in_a_selected_object")
          .given("f.json", R"({"pools":[{"names":["W"],"max":1},{"names":["X","Y"],"max":1}]})")
          .call("--file f.json --addNumber pools.names=X.max 5 --read pools.names=X.max")
          .prints("5\n")
          .leaves("f.json", R"({
  "pools": [
    {
      "names": [
        "W"
      ],
      "max": 1
    },
    {
      "names": [
        "X",
        "Y"
      ],
      "max": 5
    }
  ]
})"),
      ToolCall("number_behind_a_failed_selection_clashes")
          .given("f.json", R"({"pools":[{"names":["W"]}]})")
          .call("--file f.json --addNumber pools.names=X.max 5")
          .reports("Kovalt path not found with refKey=refValue \"names=X\"\nIncompatible types for key pools\n")
          .exits(1),
      ToolCall("number_at_the_root").call({"--addNumber", "", "5"}).prints("5\n"),
  };
}

std::vector<ToolCall> booleanRows() {
  return {
      ToolCall("boolean").call("--addBoolean k true").prints("{\n    \"k\": true\n}\n"),
      ToolCall("boolean_short_form").call("-ab k false").prints("{\n    \"k\": false\n}\n"),
      ToolCall("boolean_words_and_digits")
          .call("-ab k1 true -ab k2 1 -ab k3 FalSe -ab k4 0 -ab k5 hello")
          .prints(R"({
    "k1": true,
    "k2": true,
    "k3": false,
    "k4": false,
    "k5": null
}
)")
          .reports(rejected("hello")),
      ToolCall("boolean_in_capital_letters").call({"--addBoolean", "k", "TRUE", "-r", ""}).prints("{\"k\":true}\n"),
      ToolCall("boolean_with_more_letters")
          .call({"--addBoolean", "k", "True1", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected("true1")),
      ToolCall("empty_boolean")
          .call({"--addBoolean", "k", "", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only,  rejected.\n"),
      ToolCall("boolean_yes")
          .call({"--addBoolean", "k", "YES", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected("yes")),
      ToolCall("boolean_with_spaces")
          .call({"--addBoolean", "k", " true ", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected(" true ")),
      ToolCall("boolean_two_digits")
          .call({"--addBoolean", "k", "01", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected("01")),
      ToolCall("only_ascii_letters_are_made_small")
          .call({"--addBoolean", "k", "\xC3\x89T\xC9", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected("\xC3\x89t\xC9")),
      ToolCall("rejected_boolean_under_missing_objects")
          .call({"--addBoolean", "a.b", "no", "-r", ""})
          .prints("{\"a\":{\"b\":null}}\n")
          .reports(rejected("no")),
      ToolCall("boolean_replaces_the_other_boolean")
          .given("f.json", R"({"k":true})")
          .call("--file f.json --addBoolean k false")
          .leaves("f.json", "{\n  \"k\": false\n}"),
      ToolCall("boolean_replaces_an_object")
          .given("f.json", R"({"k":{"a":1}})")
          .call("--file f.json --addBoolean k 1")
          .leaves("f.json", "{\n  \"k\": true\n}"),
      ToolCall("rejected_boolean_for_an_existing_boolean")
          .given("f.json", R"({"k":true})")
          .call("--fileDisplay f.json --addBoolean k no --read k")
          .reports(rejected("no") + rejected("no") + "Incompatible types for key k\n")
          .exits(1),
      ToolCall("rejected_boolean_for_an_existing_string")
          .given("f.json", R"({"a":{"k":"s"}})")
          .call("--file f.json --addBoolean a.k No")
          .reports(rejected("no") + rejected("no") + "Incompatible types for key k\n")
          .exits(1),
      ToolCall("rejected_boolean_for_an_existing_object")
          .given("f.json", R"({"k":{}})")
          .call("--file f.json --addBoolean k no")
          .reports(rejected("no") + rejected("no") + "Incompatible types for key k\n")
          .exits(1),
      ToolCall("rejected_boolean_for_an_existing_null")
          .given("f.json", R"({"a":{"k":null}})")
          .call("--file f.json --addBoolean a.k no")
          .reports(rejected("no") + rejected("no"))
          .leaves("f.json", "{\n  \"a\": {\n    \"k\": null\n  }\n}"),
      ToolCall("boolean_rejected_twice_for_a_new_key")
          .call({"-ab", "k", "no", "-ab", "k", "never", "-r", ""})
          .prints("{\"k\":null}\n")
          .reports(rejected("no") + rejected("never") + rejected("never")),
      ToolCall("boolean_replaces_the_null_of_a_rejected_one")
          .call({"-ab", "k", "no", "-ab", "k", "1", "-r", ""})
          .prints("{\"k\":true}\n")
          .reports(rejected("no")),
      ToolCall("rejected_boolean_below_a_string")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addBoolean a.b no")
          .reports(rejected("no") + "Incompatible types for key a\n")
          .exits(1),
      ToolCall("rejected_boolean_in_a_selected_object")
          .given("f.json", R"({"list":[{"id":1,"on":null}]})")
          .call("--file f.json --addBoolean list.id=1.on no")
          .reports(rejected("no") + rejected("no") + "Incompatible types for key list\n")
          .exits(1),
      ToolCall("rejected_boolean_behind_a_failed_selection")
          .call({"--addBoolean", "id=1", "no", "-r", ""})
          .prints("{\"id=1\":null}\n")
          .reports("Kovalt path not found with refKey=refValue \"id=1\"\n" + rejected("no")),
      ToolCall("rejected_boolean_at_the_root")
          .given("f.json", R"({"a":1})")
          .call({"--file", "f.json", "--addBoolean", "", "no"})
          .reports(rejected("no") + rejected("no"))
          .aborts("IsObject()"),
      ToolCall("boolean_at_the_root").call({"--addBoolean", "", "1"}).prints("true\n"),
      ToolCall("boolean_behind_a_failed_selection_cannot_be_turned")
          .call("-ab k=1 true -ab k=1 false")
          .reports("Kovalt path not found with refKey=refValue \"k=1\"\n"
                   "Kovalt path not found with refKey=refValue \"k=1\"\n"
                   "Incompatible types for key k=1\n")
          .exits(1),
  };
}

const Table kNumberAdditions("NumberAdditions", numberRows);
const Table kBooleanAdditions("BooleanAdditions", booleanRows);

}  // namespace
}  // namespace kovalt::test
