#include "tool_call.h"

// A single --read beside edits, removals and the display of the document.

namespace kovalt::test {
namespace {

std::vector<ToolCall> rows() {
  return {
      ToolCall("a_read_sees_an_addition_that_stands_after_it")
          .call("--read key --addString key value")
          .prints("value\n"),
      ToolCall("a_read_sees_an_addition_in_short_form").call("-as key value -r key").prints("value\n"),
      ToolCall("an_added_string_is_escaped_when_read").call("-as key a\"b\\c\nd -r key").prints("a\\\"b\\\\c\\nd\n"),
      ToolCall("an_added_number_reads_in_decimal").call({"-an", "key", " +0042x", "-r", "key"}).prints("42\n"),
      ToolCall("an_added_object_reads_as_braces").call("-ao a.b -r a").prints("{\"b\":{}}\n"),
      ToolCall("added_arrays_read_compactly")
          .call({"-aan", "n", "1,-5", "-aab", "b", "1", "false", "-aa", "s", "x", "y", "-r", ""})
          .prints("{\"n\":[1,-5],\"b\":[true,false],\"s\":[\"x\",\"y\"]}\n"),
      ToolCall("a_rejected_boolean_reads_as_null")
          .call("-ab k5 Hello -r k5")
          .prints("null\n")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, hello rejected.\n"),
      ToolCall("a_value_set_inside_a_selected_object_is_read_back")
          .given("d.json", R"({"pools":[{"id":1},{"id":2,"size":1}]})")
          .call("-f d.json -an pools.id=2.size 8 -r pools.id=2")
          .prints("{\"id\":2,\"size\":8}\n")
          .leaves("d.json",
                  "{\n  \"pools\": [\n    {\n      \"id\": 1\n    },\n    {\n      \"id\": 2,\n      \"size\": 8\n"
                  "    }\n  ]\n}"),
      ToolCall("a_string_put_at_the_root_is_read_with_an_empty_path")
          .call({"-as", "", "text", "-r", ""})
          .prints("text\n"),
      ToolCall("a_merged_member_is_read")
          .given("more.json", R"({"a":{"b":"c"}})")
          .call("-r a.b --addFile more.json")
          .prints("c\n"),
      ToolCall("a_member_merged_at_a_path_is_read")
          .given("more.json", R"({"a":{"b":"c"}})")
          .call("-r x.a -afat x more.json")
          .prints("{\"b\":\"c\"}\n"),
      ToolCall("a_removed_member_is_missing_whatever_the_order")
          .call("--remove a --read a --addString a b")
          .reports("--read error : Path \"a\" does not exist\n"),
      ToolCall("a_removal_leaves_the_emptied_object_to_read")
          .call({"-rm", "obj.key", "-as", "obj.key", "value", "-r", ""})
          .prints("{\"obj\":{}}\n"),
      ToolCall("a_clearing_removal_leaves_nothing_to_read")
          .call({"--removeAndClear", "obj.key", "--addString", "obj.key", "value", "--read", ""})
          .prints("{}\n"),
      ToolCall("a_read_shows_the_member_moved_into_a_removed_place")
          .given("d.json", R"({"a":1,"b":2,"c":3})")
          .call({"-f", "d.json", "-rm", "a", "-r", ""})
          .prints("{\"c\":3,\"b\":2}\n")
          .leaves("d.json", "{\n  \"c\": 3,\n  \"b\": 2\n}"),
      ToolCall("the_second_of_two_members_of_one_name_is_read_after_a_removal")
          .given("d.json", R"({"a":1,"a":2})")
          .call("-f d.json -rm a -r a")
          .prints("2\n")
          .leaves("d.json", "{\n  \"a\": 2\n}"),
      ToolCall("a_read_suppresses_the_default_display_even_when_it_fails")
          .given("d.json", R"({"a":1})")
          .call("-f d.json -rm gone -r gone")
          .reports("--read error : Path \"gone\" does not exist\n"),
      ToolCall("a_displayed_document_comes_before_the_read")
          .given("d.json", R"({"a":"x","b":[]})")
          .call("-r a --fileDisplay d.json")
          .prints("{\n    \"a\": \"x\",\n    \"b\": []\n}\nx\n"),
      ToolCall("a_displayed_document_stands_alone_when_the_read_fails")
          .given("d.json", R"({"a":"x"})")
          .call("-fd d.json -r b")
          .prints("{\n    \"a\": \"x\"\n}\n")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("an_edited_document_is_displayed_saved_and_read")
          .given("d.json", R"({"a":"x"})")
          .call("-fd d.json -as b y -r b")
          .prints("{\n    \"a\": \"x\",\n    \"b\": \"y\"\n}\ny\n")
          .leaves("d.json", "{\n  \"a\": \"x\",\n  \"b\": \"y\"\n}"),
      ToolCall("reading_again_later_finds_escapes_as_saved")
          .given("d.json", R"({})")
          .call("-f d.json -as a tab\there -r a")
          .prints("tab\\there\n")
          .leaves("d.json", "{\n  \"a\": \"tab\\there\"\n}"),
  };
}

const Table kReadingWithEdits("ReadingWithEdits", rows);

}  // namespace
}  // namespace kovalt::test
