// The fixed order of the work: edits, removals, display and save, reads; and what reads see of the edits.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

std::vector<ToolCall> order() {
  return {
      // Edits before removals, removals before display and save, reads last.
      ToolCall("removal_given_before_the_addition").call("--remove k --addString k v").prints("{}\n"),
      ToolCall("removal_given_between_two_additions").call("-as k v -rm k -as k w").prints("{}\n"),
      ToolCall("removal_given_before_the_merge")
          .given("more.json", R"({"a":1,"b":2})")
          .call("-rm b -af more.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("read_given_before_the_addition").call("-r k -as k v").prints("v\n"),
      ToolCall("read_sees_the_removal")
          .call("-r k -as k v -rm k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("saved_file_shows_the_removal")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-rm b -f conf.json -an a 3")
          .leaves("conf.json", "{\n  \"a\": 3\n}"),
      ToolCall("display_shows_the_removal")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-fd conf.json -rm b")
          .prints("{\n    \"a\": 1\n}\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("removals_are_done_in_their_order")
          .given("conf.json", R"({"a":1,"b":2,"c":3,"d":4})")
          .call("-f conf.json -rm a -rm b")
          .leaves("conf.json", "{\n  \"d\": 4,\n  \"c\": 3\n}"),
      ToolCall("later_edit_wins").call("-as k v -an k 1").prints("{\n    \"k\": 1\n}\n"),
      ToolCall("object_behind_its_member_empties_it").call("-as o.k v -ao o").prints("{\n    \"o\": {}\n}\n"),
      ToolCall("object_before_its_member_holds_it").call("-ao o -as o.k v").prints(R"({
    "o": {
        "k": "v"
    }
}
)"),
      ToolCall("addition_behind_a_merge")
          .given("more.json", R"({"k":"merged"})")
          .call("-af more.json -as k added")
          .prints("{\n    \"k\": \"added\"\n}\n"),
      ToolCall("merge_behind_an_addition")
          .given("more.json", R"({"k":"merged"})")
          .call("-as k added -af more.json")
          .prints("{\n    \"k\": \"merged\"\n}\n"),
      ToolCall("merges_at_two_places_keep_their_order")
          .given("one.json", R"({"l":[1]})")
          .given("two.json", R"({"l":[2]})")
          .call("-afat o two.json -afat o one.json")
          .prints(R"({
    "o": {
        "l": [
            2,
            1
        ]
    }
}
)"),
      ToolCall("edit_of_a_nested_key_saved_and_read_back")
          .given("conf.json", R"({"network":{"host":"h"}})")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .prints("9000\n")
          .leaves("conf.json", R"({
  "network": {
    "host": "h",
    "webSocketPort": "9000"
  }
})"),
      ToolCall("edit_of_a_missing_nested_key_saved_and_read_back")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .prints("9000\n")
          .leaves("conf.json", R"({
  "network": {
    "webSocketPort": "9000"
  }
})"),
      ToolCall("reads_see_the_edits_of_a_file_that_cannot_be_saved")
          .call("-r k -f no/such/conf.json -as k v")
          .prints("v\n")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),

      // Both streams, in the order in which they are written.
      ToolCall("streams_edit_message_before_the_display")
          .withMergedStreams()
          .given("conf.json", R"({"a":1})")
          .call("-r b -fd conf.json -ab k maybe")
          .prints(R"(Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
{
    "a": 1,
    "k": null
}
--read error : Path "b" does not exist
)")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"k\": null\n}"),
      ToolCall("streams_load_message_before_the_display")
          .withMergedStreams()
          .given("conf.json", "{")
          .call("-fd conf.json")
          .prints("Could not parse json file conf.json\n{}\n"),
      ToolCall("streams_merge_message_before_the_display")
          .withMergedStreams()
          .call("-af missing.json")
          .prints("Could not open document: missing.json\n{}\n"),
      ToolCall("streams_display_then_failed_save_then_read")
          .withMergedStreams()
          .call("-fd no/such/conf.json -as k v -r k")
          .prints(R"({
    "k": "v"
}
Could not write document: no/such/conf.json
v
)")
          .exits(1),
      ToolCall("streams_display_then_read_error")
          .withMergedStreams()
          .given("conf.json", R"({"a":1})")
          .call("-fd conf.json -r b")
          .prints("{\n    \"a\": 1\n}\n--read error : Path \"b\" does not exist\n"),
      ToolCall("streams_read_errors_before_the_gathered_reads")
          .withMergedStreams()
          .call("-r x -as k v -r k -r y")
          .prints(R"(--read error : Path "x" does not exist
--read error : Path "y" does not exist
{
    "k": "v"
}
)"),
      ToolCall("streams_field_errors_before_the_line")
          .withMergedStreams()
          .given("conf.json", R"({"l":[{"a":1},{"b":2}]})")
          .call("-f conf.json -roac l a")
          .prints("--read error : Path \"a\" does not exist\n 1\n"),
      ToolCall("messages_of_load_merge_edit_and_save")
          .givenDirectory("folder")
          .call("-f folder -af missing.json -ab k maybe")
          .reports(R"(Could not parse json file folder
Could not open document: missing.json
Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
Could not write document: folder
)")
          .exits(1),
  };
}

std::vector<ToolCall> readsWithEdits() {
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

const Table kRunOrder("RunOrder", order);
const Table kReadingWithEdits("ReadingWithEdits", readsWithEdits);

}  // namespace
}  // namespace kovalt::test
