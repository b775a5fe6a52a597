// Every option in its long and its short form, arguments that look like options, and options in any order.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kArrays = R"({"l": ["a", "b c", 1, true, null], "m": ["x", "y"]})";
constexpr auto kLinks = R"({"links": [{"id": 0, "port": 2099}, {"id": 1, "port": 3002}]})";

std::vector<ToolCall> optionForms() {
  return {
      ToolCall("add_string").call("--addString a x -as b y --read ''").printsLine(R"({"a":"x","b":"y"})"),
      ToolCall("add_boolean").call("--addBoolean a true -ab b false --read ''").printsLine(R"({"a":true,"b":false})"),
      ToolCall("add_number").call("--addNumber a 1 -an b -2 --read ''").printsLine(R"({"a":1,"b":-2})"),
      ToolCall("add_object").call("--addObject a -ao b --read ''").printsLine(R"({"a":{},"b":{}})"),
      ToolCall("add_array").call("--addArray a x -aa b y z --read ''").printsLine(R"({"a":["x"],"b":["y","z"]})"),
      ToolCall("add_array_boolean")
          .call("--addArrayBoolean a 1 -aab b 0 true --read ''")
          .printsLine(R"({"a":[true],"b":[false,true]})"),
      ToolCall("add_array_number").call("--addArrayNumber a 1 -aan b 2 3 -r ''").printsLine(R"({"a":[1],"b":[2,3]})"),
      ToolCall("add_file")
          .given("one.json", R"({"a":1})")
          .given("two.json", R"({"b":2})")
          .call("--addFile one.json -af two.json --read ''")
          .printsLine(R"({"a":1,"b":2})"),
      ToolCall("add_file_at")
          .given("one.json", R"({"a":1})")
          .given("two.json", R"({"b":2})")
          .call("--addFileAt x one.json -afat y two.json --read ''")
          .printsLine(R"({"x":{"a":1},"y":{"b":2}})"),
      ToolCall("remove_keeps_empty_objects")
          .given("f.json", R"({"a":{"b":1},"c":{"d":2}})")
          .call("--addFile f.json --remove a.b -rm c.d --read ''")
          .printsLine(R"({"a":{},"c":{}})"),
      ToolCall("remove_and_clear")
          .given("f.json", R"({"a":{"b":1},"c":{"d":2}})")
          .call("--addFile f.json --removeAndClear a.b -rmc c.d --read ''")
          .printsLine("{}"),
      ToolCall("read").call("-as a x -an b 5 --read a -r b").prints(R"({
    "a": "x",
    "b": "5"
}
)"),
      ToolCall("read_array_space").given("f.json", kArrays).call("-f f.json --readArraySpace l -ras m").prints(R"({
    "l": "\"a\" \"b c\" 1 true null",
    "m": "\"x\" \"y\""
}
)"),
      ToolCall("read_array_space_no_quote")
          .given("f.json", kArrays)
          .call("-f f.json --readArraySpaceNoQuote l -rasq m")
          .prints(R"({
    "l": "a b c 1 true null",
    "m": "x y"
}
)"),
      ToolCall("read_array_is_read_array_space_no_quote")
          .given("f.json", kArrays)
          .call("-f f.json --readArray l -ra m")
          .prints(R"({
    "l": "a b c 1 true null",
    "m": "x y"
}
)"),
      ToolCall("read_array_comma").given("f.json", kArrays).call("-f f.json --readArrayComma l -rac m").prints(R"({
    "l": "\"a\",\"b c\",1,true,null",
    "m": "\"x\",\"y\""
}
)"),
      ToolCall("read_array_comma_no_quote")
          .given("f.json", kArrays)
          .call("-f f.json --readArrayCommaNoQuote l -racq m")
          .prints(R"({
    "l": "a,b c,1,true,null",
    "m": "x,y"
}
)"),
      ToolCall("read_object_array_concat")
          .given("f.json", kLinks)
          .call("-f f.json --readObjectArrayConcat links id port -roac links port")
          .prints(R"({
    "links": "0 2099 1 3002",
    "links": "2099 3002"
}
)"),
      ToolCall("read_object_array_concat_sep")
          .given("f.json", kLinks)
          .call("-f f.json --readObjectArrayConcatSep links id port / -roacs links port id :")
          .prints(R"({
    "links": "0/2099 1/3002",
    "links": "2099:0 3002:1"
}
)"),
      ToolCall("long_form_of_file").given("f.json", "7").call("--file f.json --read ''").printsLine("7"),
      ToolCall("short_form_of_file").given("f.json", "7").call("-f f.json --read ''").printsLine("7"),
      ToolCall("long_form_of_file_display").given("f.json", "7").call("--fileDisplay f.json -r ''").prints("7\n7\n"),
      ToolCall("short_form_of_file_display").given("f.json", "7").call("-fd f.json --read ''").prints("7\n7\n"),
  };
}

/// An argument that must follow an option is never itself an option, whatever it looks like. The only exception is the
/// one after the key path of a concatenation.
std::vector<ToolCall> requiredArguments() {
  return {
      ToolCall("key_path_with_a_dash").call("--addString -k v --read ''").printsLine(R"({"-k":"v"})"),
      ToolCall("option_as_key_path").call("--addString -as v --read ''").printsLine(R"({"-as":"v"})"),
      ToolCall("option_as_value").call("--addString k --file --read ''").printsLine(R"({"k":"--file"})"),
      ToolCall("empty_value").call("--addString k '' --read ''").printsLine(R"({"k":""})"),
      ToolCall("option_as_boolean")
          .call("--addBoolean k --remove --read ''")
          .printsLine(R"({"k":null})")
          .reports(rejected("--remove")),
      ToolCall("option_as_key_path_of_an_object").call("-ao -ao --read ''").printsLine(R"({"-ao":{}})"),
      ToolCall("option_as_key_path_of_an_array").call("-aa -aa x --read ''").printsLine(R"({"-aa":["x"]})"),
      ToolCall("option_as_key_path_of_a_read").call("--read --read").reports(readError("--read")),
      ToolCall("option_as_key_path_of_a_removal").call("--remove --remove -as k v -r ''").printsLine(R"({"k":"v"})"),
      ToolCall("option_as_file_to_merge").call("--addFile -af").printsLine("{}").reports(cannotOpen("-af")),
      ToolCall("option_as_key_path_and_as_file")
          .given("-f", R"({"a":1})")
          .call("--addFileAt -f -f --read ''")
          .printsLine(R"({"-f":{"a":1}})"),
      ToolCall("option_as_file").given("--file", R"({"a":1})").call("--file --file --read a").printsLine("1"),
      ToolCall("option_as_key_path_of_a_concatenation")
          .given("data.json", kLinks)
          .call("--readObjectArrayConcat -f data.json links id")
          .reports(readError("-f")),
  };
}

std::vector<ToolCall> orderOfOptions() {
  return {
      ToolCall("file_after_the_edits").call("-as a x -r a -f f.json").printsLine("x").leaves("f.json", R"({
  "a": "x"
})"),
      ToolCall("file_between_the_edits").call("-as a x -f f.json -as b y").leaves("f.json", R"({
  "a": "x",
  "b": "y"
})"),
      ToolCall("edits_keep_their_order")
          .call("-an d 1 -aa c x -ao b -as a y -r ''")
          .printsLine(R"({"d":1,"c":["x"],"b":{},"a":"y"})"),
      ToolCall("reads_keep_their_order_between_edits").call("-r b -as a x -ra a -as b y").prints(R"({
    "b": "y",
    "a": "x"
}
)"),
  };
}

const Table kOptionForms("OptionForms", optionForms);
const Table kRequiredArguments("RequiredArguments", requiredArguments);
const Table kOrderOfOptions("OrderOfOptions", orderOfOptions);

}  // namespace
}  // namespace kovalt::test
