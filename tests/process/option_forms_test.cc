// Every option in its long and its short form, and options that take a fixed number of arguments.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kArrays = R"({"l": ["a", "b c", 1], "m": ["x", "y"]})";
constexpr const char* kLinks = R"({"links": [{"id": 0, "port": 2099}, {"id": 1, "port": 3002}]})";

std::vector<ToolCall> optionForms() {
  return {
      ToolCall("add_string").call("--addString a x -as b y").prints(R"({
    "a": "x",
    "b": "y"
}
)"),
      ToolCall("add_boolean").call("--addBoolean a true -ab b false").prints(R"({
    "a": true,
    "b": false
}
)"),
      ToolCall("add_number").call("--addNumber a 1 -an b -2").prints(R"({
    "a": 1,
    "b": -2
}
)"),
      ToolCall("add_object").call("--addObject a -ao b").prints(R"({
    "a": {},
    "b": {}
}
)"),
      ToolCall("add_array").call("--addArray a x -aa b y").prints(R"({
    "a": [
        "x"
    ],
    "b": [
        "y"
    ]
}
)"),
      ToolCall("add_array_boolean").call("--addArrayBoolean a 1 -aab b 0").prints(R"({
    "a": [
        true
    ],
    "b": [
        false
    ]
}
)"),
      ToolCall("add_array_number").call("--addArrayNumber a 1 -aan b 2").prints(R"({
    "a": [
        1
    ],
    "b": [
        2
    ]
}
)"),
      ToolCall("add_file")
          .given("one.json", R"({"a":1})")
          .given("two.json", R"({"b":2})")
          .call("--addFile one.json -af two.json")
          .prints(R"({
    "a": 1,
    "b": 2
}
)"),
      ToolCall("add_file_at")
          .given("one.json", R"({"a":1})")
          .given("two.json", R"({"b":2})")
          .call("--addFileAt x one.json -afat y two.json")
          .prints(R"({
    "x": {
        "a": 1
    },
    "y": {
        "b": 2
    }
}
)"),
      ToolCall("remove")
          .given("one.json", R"({"a":1,"b":2})")
          .call("--addFile one.json --remove a -rm b")
          .prints("{}\n"),
      ToolCall("remove_leaves_empty_parents")
          .given("one.json", R"({"a":{"b":1},"c":{"d":2}})")
          .call("--addFile one.json --remove a.b -rm c.d")
          .prints(R"({
    "a": {},
    "c": {}
}
)"),
      ToolCall("remove_and_clear")
          .given("one.json", R"({"a":{"b":1},"c":{"d":2}})")
          .call("--addFile one.json --removeAndClear a.b -rmc c.d")
          .prints("{}\n"),
      ToolCall("read").call("-as a x -an b 5 --read a -r b").prints(R"({
    "a": "x",
    "b": "5"
}
)"),
      ToolCall("read_array_space")
          .given("arrays.json", kArrays)
          .call("-f arrays.json --readArraySpace l -ras m")
          .prints(R"({
    "l": "\"a\" \"b c\" 1",
    "m": "\"x\" \"y\""
}
)"),
      ToolCall("read_array_space_no_quote")
          .given("arrays.json", kArrays)
          .call("-f arrays.json --readArraySpaceNoQuote l -rasq m")
          .prints(R"({
    "l": "a b c 1",
    "m": "x y"
}
)"),
      ToolCall("read_array_is_read_array_space_no_quote")
          .given("arrays.json", kArrays)
          .call("-f arrays.json --readArray l -ra m")
          .prints(R"({
    "l": "a b c 1",
    "m": "x y"
}
)"),
      ToolCall("read_array_comma")
          .given("arrays.json", kArrays)
          .call("-f arrays.json --readArrayComma l -rac m")
          .prints(R"({
    "l": "\"a\",\"b c\",1",
    "m": "\"x\",\"y\""
}
)"),
      ToolCall("read_array_comma_no_quote")
          .given("arrays.json", kArrays)
          .call("-f arrays.json --readArrayCommaNoQuote l -racq m")
          .prints(R"({
    "l": "a,b c,1",
    "m": "x,y"
}
)"),
      ToolCall("read_object_array_concat")
          .given("links.json", kLinks)
          .call("-f links.json --readObjectArrayConcat links id port -roac links port")
          .prints(R"({
    "links": "0 2099 1 3002",
    "links": "2099 3002"
}
)"),
      ToolCall("read_object_array_concat_sep")
          .given("links.json", kLinks)
          .call("-f links.json --readObjectArrayConcatSep links id port / -roacs links port id :")
          .prints(R"({
    "links": "0/2099 1/3002",
    "links": "2099:0 3002:1"
}
)"),
      ToolCall("long_file")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an a 2")
          .leaves("conf.json", "{\n  \"a\": 2\n}"),
      ToolCall("short_file")
          .given("conf.json", R"({"a":1})")
          .call("-f conf.json -an a 2")
          .leaves("conf.json", "{\n  \"a\": 2\n}"),
      ToolCall("long_file_display")
          .given("conf.json", R"({"a":1})")
          .call("--fileDisplay conf.json -an a 2")
          .prints("{\n    \"a\": 2\n}\n")
          .leaves("conf.json", "{\n  \"a\": 2\n}"),
      ToolCall("short_file_display")
          .given("conf.json", R"({"a":1})")
          .call("-fd conf.json -an a 2")
          .prints("{\n    \"a\": 2\n}\n")
          .leaves("conf.json", "{\n  \"a\": 2\n}"),
  };
}

std::vector<ToolCall> fixedArguments() {
  return {
      // Fixed arguments are taken whatever they look like.
      ToolCall("dash_in_a_key_path").call("--addString -k v").prints("{\n    \"-k\": \"v\"\n}\n"),
      ToolCall("option_as_a_key_path").call("--addString -as v").prints("{\n    \"-as\": \"v\"\n}\n"),
      ToolCall("option_as_a_value").call("--addString k --file").prints("{\n    \"k\": \"--file\"\n}\n"),
      ToolCall("negative_number").call("--addNumber k -5").prints("{\n    \"k\": -5\n}\n"),
      ToolCall("empty_value").call({"--addString", "k", ""}).prints("{\n    \"k\": \"\"\n}\n"),
      ToolCall("empty_key_path_of_a_read").call({"-as", "k", "v", "--read", ""}).prints("{\"k\":\"v\"}\n"),
      ToolCall("option_as_a_boolean")
          .call("--addBoolean k --remove")
          .prints("{\n    \"k\": null\n}\n")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, --remove rejected.\n"),
      ToolCall("option_as_the_key_path_of_an_object").call("-ao -ao").prints("{\n    \"-ao\": {}\n}\n"),
      ToolCall("option_as_the_key_path_of_an_array").call("-aa -aa").prints("{\n    \"-aa\": []\n}\n"),
      ToolCall("option_as_the_path_of_a_read")
          .call("--read --read")
          .reports("--read error : Path \"--read\" does not exist\n"),
      ToolCall("option_as_the_path_of_a_removal").call("--remove --remove -as k v").prints(R"({
    "k": "v"
}
)"),
      ToolCall("option_as_a_file_to_merge")
          .call("--addFile -af")
          .prints("{}\n")
          .reports("Could not open document: -af\n"),
      ToolCall("option_as_both_arguments_of_add_file_at")
          .given("-f", R"({"a":1})")
          .call("--addFileAt -f -f")
          .prints(R"({
    "-f": {
        "a": 1
    }
}
)"),
      ToolCall("option_as_a_file").call("--file --file -as k v").leaves("--file", "{\n  \"k\": \"v\"\n}"),
      ToolCall("option_as_the_key_path_of_a_concatenation")
          .given("data.json", kLinks)
          .call("--readObjectArrayConcat -f data.json links id")
          .reports("--read error : Path \"-f\" does not exist\n"),
      ToolCall("option_as_the_key_path_of_a_separated_concatenation")
          .given("data.json", kLinks)
          .call("-roacs -fd data.json links /")
          .reports("--read error : Path \"-fd\" does not exist\n"),

      // The places of the options.
      ToolCall("file_after_the_edits").call("-as k v -f conf.json").leaves("conf.json", R"({
  "k": "v"
})"),
      ToolCall("file_between_the_edits")
          .call("-as a x -f conf.json -as b y")
          .leaves("conf.json",
                  R"({
  "a": "x",
  "b": "y"
})"),
      ToolCall("edits_of_several_kinds_keep_their_order").call("-an d 1 -aa c x -ao b -as a y").prints(R"({
    "d": 1,
    "c": [
        "x"
    ],
    "b": {},
    "a": "y"
}
)"),
      ToolCall("reads_keep_their_order_between_edits").call("-r b -as a x -ra a -as b y").prints(R"({
    "b": "y",
    "a": "x"
}
)"),
  };
}

const Table kParserOptionForms("ParserOptionForms", optionForms);
const Table kParserFixedArguments("ParserFixedArguments", fixedArguments);

}  // namespace
}  // namespace kovalt::test
