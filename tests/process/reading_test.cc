// The output of --read: the text of a single read, or one object with the texts of several.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> singleReads() {
  return {
      reading("string", R"({"a":"value"})", "a").printsLine("value"),
      reading("empty_string", R"({"a":""})", "a").printsLine(""),
      reading("spaces_around_a_string", R"({"a":"  x  "})", "a").printsLine("  x  "),
      reading("string_is_escaped", R"({"a":"say \"hi\" to C:\\dir\n1\u0000\u0001\u001f2\/\u00e9\ud83d\ude00\u007f"})",
              "a")
          .printsLine("say \\\"hi\\\" to C:\\\\dir\\n1\\u0000\\u0001\\u001F2/é😀\x7F"),
      reading("only_the_outer_quotes_are_removed", R"({"a":"\"x\""})", "a").printsLine(R"(\"x\")"),
      reading("lone_quote", R"({"a":"\""})", "a").printsLine(R"(\")"),
      reading("bytes_that_are_not_utf_8", "{\"a\":\"\xFF\xC3\"}", "a").printsLine("\xFF\xC3"),
      reading("number", R"({"a":1E2})", "a").printsLine("100.0"),
      reading("null", R"({"a":null})", "a").printsLine("null"),
      reading("object_is_compact", "{ \"o\" : {\r\n \"a\" : 1 ,\t\"b\" : [ true , { } ] } }\n", "o")
          .printsLine(R"({"a":1,"b":[true,{}]})"),
      reading("array_keeps_its_brackets_and_quotes", R"({"a":["x", "y"]})", "a").printsLine(R"(["x","y"])"),
      reading("string_root", R"("text")", "").printsLine("text"),
      ToolCall("root_without_a_file").call("--read ''").printsLine("{}"),
      reading("missing_path", R"({"a":1})", "b").reports(readError("b")),

      // Reads run after the edits.
      ToolCall("added_string_is_escaped").call("-as key a\"b\\c\nd -r key").printsLine(R"(a\"b\\c\nd)"),
      ToolCall("added_number").call("-an key ' +0042x' -r key").printsLine("42"),
      ToolCall("rejected_boolean").call("-ab k Hello -r k").printsLine("null").reports(rejected("hello")),
      ToolCall("member_of_a_merged_file")
          .given("more.json", R"({"a":{"b":"c"}})")
          .call("-r x.a -afat x more.json")
          .printsLine(R"({"b":"c"})"),
      ToolCall("removed_member").call("--remove a --read a --addString a b").reports(readError("a")),
      ToolCall("second_of_equal_names_after_a_removal")
          .given("f.json", R"({"a":1,"a":2})")
          .call("-f f.json -rm a -r a")
          .printsLine("2")
          .leaves("f.json", R"({
  "a": 2
})"),
  };
}

std::vector<ToolCall> severalReads() {
  return {
      ToolCall("members_have_the_order_of_the_options")
          .given("f.json", R"({"a":"1st","b":"2nd","c":"3rd"})")
          .call("--file f.json --read b -r a --read c")
          .prints(R"({
    "b": "2nd",
    "a": "1st",
    "c": "3rd"
}
)"),
      ToolCall("every_value_becomes_a_string")
          .given("f.json", R"({"s":"","i":5,"d":2.50,"t":true,"n":null,"o": {"k": "v", "l": {}},"a": ["x", 1]})")
          .call("-f f.json -r s -r i -r d -r t -r n -r o -r a")
          .prints(R"({
    "s": "",
    "i": "5",
    "d": "2.5",
    "t": "true",
    "n": "null",
    "o": "{\"k\":\"v\",\"l\":{}}",
    "a": "[\"x\",1]"
}
)"),
      ToolCall("escapes_are_escaped_again")
          .given("f.json", R"({"q":"say \"hi\"","n":"1\n2","z":"x\u0000y"})")
          .call("-f f.json -r q -r n -r z")
          .prints(R"({
    "q": "say \\\"hi\\\"",
    "n": "1\\n2",
    "z": "x\\u0000y"
}
)"),
      ToolCall("member_is_named_by_the_whole_path")
          .given("f.json", R"({"a":{"b":{"":"x"}},"l":[{"id":"7=","n":"y"}]})")
          .call("-f f.json -r a.b. -r l.id=7=.n -r ''")
          .prints(R"({
    "a.b.": "x",
    "l.id=7=.n": "y",
    "": "{\"a\":{\"b\":{\"\":\"x\"}},\"l\":[{\"id\":\"7=\",\"n\":\"y\"}]}"
}
)"),
      ToolCall("path_is_escaped_as_a_name")
          .given("f.json", R"({"say \"hi\"":"x","\t":"y","é":"ü"})")
          .call("-f f.json -r 'say \"hi\"' -r \t -r é")
          .prints(R"({
    "say \"hi\"": "x",
    "\t": "y",
    "é": "ü"
}
)"),
      ToolCall("one_path_twice").given("f.json", R"({"a":"x"})").call("-f f.json --read a --read a").prints(R"({
    "a": "x",
    "a": "x"
}
)"),
      ToolCall("reads_of_different_kinds")
          .given("f.json", R"({"b":["p","q"],"l":[{"k":1},{"k":1}],"s":[]})")
          .call("-f f.json -rac b -roac l k -r b -ra s")
          .prints(R"*({
    "b": "\"p\",\"q\"",
    "l": "1(2)",
    "b": "[\"p\",\"q\"]",
    "s": ""
}
)*"),
      ToolCall("only_missing_paths")
          .call("-r x -r y -r x")
          .printsLine("{}")
          .reports(readError("x") + readError("y") + readError("x")),
      ToolCall("missing_paths_have_no_member")
          .given("f.json", R"({"a":1,"l":[{"id":1}]})")
          .call("-f f.json -ra b -r a -r l.id=2")
          .prints(R"({
    "a": "1"
}
)")
          .reports(readError("b") + notFound("id=2")),
      ToolCall("edits_between_reads_run_first")
          .call("-r a -as a x -r b -as b y -rm a")
          .prints(R"({
    "b": "y"
}
)")
          .reports(readError("a")),
      ToolCall("reads_add_nothing_to_the_saved_document")
          .given("f.json", R"({"a":1})")
          .call("-f f.json -an b 2 -r a -r b")
          .prints(R"({
    "a": "1",
    "b": "2"
}
)")
          .leaves("f.json", R"({
  "a": 1,
  "b": 2
})"),
  };
}

const Table kSingleReads("SingleReads", singleReads);
const Table kSeveralReads("SeveralReads", severalReads);

}  // namespace
}  // namespace kovalt::test
