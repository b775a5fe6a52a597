// Additions of strings and of empty objects.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

std::vector<ToolCall> stringRows() {
  return {
      ToolCall("string").call("--addString key value").prints("{\n    \"key\": \"value\"\n}\n"),
      ToolCall("string_short_form").call("-as key value").prints("{\n    \"key\": \"value\"\n}\n"),
      ToolCall("string_under_missing_objects")
          .call({"--addString", "object1.object2.stringKey", "stringValue", "--read", ""})
          .prints("{\"object1\":{\"object2\":{\"stringKey\":\"stringValue\"}}}\n"),
      ToolCall("string_into_a_file_with_a_read")
          .given("conf.json", R"({"network":{"port":1}})")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .prints("9000\n")
          .leaves("conf.json", "{\n  \"network\": {\n    \"port\": 1,\n    \"webSocketPort\": \"9000\"\n  }\n}"),
      ToolCall("empty_string").call({"--addString", "k", ""}).prints("{\n    \"k\": \"\"\n}\n"),
      ToolCall("string_of_digits_stays_a_string").call({"-as", "k", "12", "-r", ""}).prints("{\"k\":\"12\"}\n"),
      ToolCall("string_true_stays_a_string").call({"-as", "k", "TRUE", "-r", ""}).prints("{\"k\":\"TRUE\"}\n"),
      ToolCall("string_with_commas_is_not_split").call({"-as", "k", "a,b", "-r", ""}).prints("{\"k\":\"a,b\"}\n"),
      ToolCall("string_that_looks_like_an_option").call({"-as", "k", "-as", "-r", ""}).prints("{\"k\":\"-as\"}\n"),
      ToolCall("string_value_is_not_decoded")
          .call({"-as", "k", "a\\n\\u0041", "-r", ""})
          .prints("{\"k\":\"a\\\\n\\\\u0041\"}\n"),
      ToolCall("string_value_is_escaped_when_printed")
          .call({"-as", "k", "\"\\/\n\r\t\b\f\x01\x1F\x7F", "-r", ""})
          .prints("{\"k\":\"\\\"\\\\/\\n\\r\\t\\b\\f\\u0001\\u001F\x7F\"}\n"),
      ToolCall("string_value_keeps_bytes_above_ascii")
          .call({"-as", "k", "\xC3\xA9\xFF", "-r", ""})
          .prints("{\"k\":\"\xC3\xA9\xFF\"}\n"),
      ToolCall("string_replaces_a_string")
          .given("f.json", R"({"k":"old","l":1})")
          .call("--file f.json --addString k new")
          .leaves("f.json", "{\n  \"k\": \"new\",\n  \"l\": 1\n}"),
      ToolCall("string_replaces_an_object")
          .given("f.json", R"({"key":{"a":1}})")
          .call("--file f.json --addString key x")
          .leaves("f.json", "{\n  \"key\": \"x\"\n}"),
      ToolCall("string_replaces_an_array")
          .given("f.json", R"({"key":["a"]})")
          .call("--file f.json --addString key x")
          .leaves("f.json", "{\n  \"key\": \"x\"\n}"),
      ToolCall("string_replaces_null")
          .given("f.json", R"({"key":null})")
          .call("--file f.json --addString key x")
          .leaves("f.json", "{\n  \"key\": \"x\"\n}"),
      ToolCall("string_replaces_a_root_object")
          .given("f.json", R"({"key":1})")
          .call({"--file", "f.json", "--addString", "", "x"})
          .leaves("f.json", "\"x\""),
      ToolCall("string_below_a_string_clashes")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addString a.b x")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("string_below_an_array_clashes")
          .given("f.json", R"({"items":["s"]})")
          .call("--file f.json --addString items.0 x")
          .reports("Incompatible types for key items\n")
          .exits(1),
      ToolCall("string_below_null_clashes")
          .given("f.json", R"({"a":null})")
          .call("--file f.json --addString a.b x")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_names_the_member_at_its_level")
          .given("f.json", R"({"a":{"b":{"c":1}}})")
          .call("--file f.json --addString a.b.c.d.e x")
          .reports("Incompatible types for key c\n")
          .exits(1),
      ToolCall("clash_ends_the_call_at_once")
          .given("f.json", R"({"a":"s"})")
          .call("--fileDisplay f.json --addString n 1 --addString a.b x --addNumber n abc --read a --remove n")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("additions_run_in_their_order")
          .call({"-as", "k", "one", "-an", "k", "2", "-as", "k", "three", "-r", ""})
          .prints("{\"k\":\"three\"}\n"),
      ToolCall("value_of_another_type_replaces_an_earlier_addition")
          .call({"-as", "k", "one", "-an", "k", "2", "-r", ""})
          .prints("{\"k\":2}\n"),
      ToolCall("everything_runs_in_its_fixed_order")
          .call({"--read", "a", "--remove", "b", "--addString", "a", "x", "--addString", "b", "y", "--read", ""})
          .prints("{\n    \"a\": \"x\",\n    \"\": \"{\\\"a\\\":\\\"x\\\"}\"\n}\n"),
  };
}

std::vector<ToolCall> objectRows() {
  return {
      ToolCall("object").call("--addObject k").prints("{\n    \"k\": {}\n}\n"),
      ToolCall("object_short_form").call("-ao k").prints("{\n    \"k\": {}\n}\n"),
      ToolCall("object_under_missing_objects")
          .call({"--addObject", "a.b.c", "-r", ""})
          .prints("{\"a\":{\"b\":{\"c\":{}}}}\n"),
      ToolCall("object_empties_an_object")
          .given("f.json", R"({"a":{"b":1,"c":{}},"d":2})")
          .call("--file f.json --addObject a")
          .leaves("f.json", "{\n  \"a\": {},\n  \"d\": 2\n}"),
      ToolCall("object_replaces_a_string")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addObject a")
          .leaves("f.json", "{\n  \"a\": {}\n}"),
      ToolCall("object_replaces_an_array")
          .given("f.json", R"({"a":[1]})")
          .call("--file f.json --addObject a")
          .leaves("f.json", "{\n  \"a\": {}\n}"),
      ToolCall("object_empties_the_root")
          .given("f.json", R"({"a":1})")
          .call({"--file", "f.json", "--addObject", ""})
          .leaves("f.json", "{}"),
      ToolCall("object_replaces_a_root_array")
          .given("f.json", "[1]")
          .call({"--file", "f.json", "--addObject", "", "--addString", "a", "b"})
          .leaves("f.json", "{\n  \"a\": \"b\"\n}"),
      ToolCall("object_is_filled_by_later_additions")
          .call({"-ao", "a", "-as", "a.b", "v", "-r", ""})
          .prints("{\"a\":{\"b\":\"v\"}}\n"),
      ToolCall("object_empties_what_earlier_additions_made")
          .call({"-as", "a.b", "v", "-ao", "a", "-r", ""})
          .prints("{\"a\":{}}\n"),
      ToolCall("object_empties_a_selected_object")
          .given("f.json", R"([{"id":1},{"id":2}])")
          .call("--file f.json --addObject id=2")
          .leaves("f.json", "[\n  {\n    \"id\": 1\n  },\n  {}\n]"),
      ToolCall("object_behind_a_failed_selection_is_not_emptied")
          .given("f.json", R"({"k=1":{"a":1}})")
          .call("--file f.json --addObject k=1")
          .reports("Kovalt path not found with refKey=refValue \"k=1\"\n")
          .leaves("f.json", "{\n  \"k=1\": {\n    \"a\": 1\n  }\n}"),
      ToolCall("object_below_a_number_clashes")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --addObject a.b")
          .reports("Incompatible types for key a\n")
          .exits(1),
  };
}

const Table kStringAdditions("StringAdditions", stringRows);
const Table kObjectAdditions("ObjectAdditions", objectRows);

}  // namespace
}  // namespace kovalt::test
