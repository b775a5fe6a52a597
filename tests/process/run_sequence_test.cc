#include "tool_call.h"

namespace kovalt::test {
namespace {

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

std::vector<ToolCall> displayAndSave() {
  return {
      // Without a file.
      ToolCall("no_file_and_an_edit").call("--addString k v").prints("{\n    \"k\": \"v\"\n}\n"),
      ToolCall("no_file_and_a_removal").call("--remove k").prints("{}\n"),
      ToolCall("no_file_and_a_removal_of_nothing").call({"--remove", ""}).prints("{}\n"),
      ToolCall("no_file_and_a_read").call("--read k").reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("no_file_and_a_read_of_the_root").call({"--read", ""}).prints("{}\n"),
      ToolCall("no_file_and_an_edit_and_a_read").call("-as k v -as l w --read k").prints("v\n"),
      ToolCall("no_file_and_a_removal_and_a_read")
          .call("-rm k -r k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("no_file_and_two_reads").call("-as k v -an l 1 -r k -r l").prints(R"({
    "k": "v",
    "l": "1"
}
)"),

      // With a file that is only looked at: it stays byte for byte.
      ToolCall("file_alone")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("file_display_alone")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("file_and_a_read").given("conf.json", "{\"a\" : 1}\n").call("--file conf.json -r a").prints("1\n"),
      ToolCall("file_and_a_failing_read")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json -r b")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("file_and_two_reads")
          .given("conf.json", R"({"a":1})")
          .call({"-f", "conf.json", "-r", "a", "-r", ""})
          .prints(R"({
    "a": "1",
    "": "{\"a\":1}"
}
)"),
      ToolCall("file_display_and_a_read")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json --read a")
          .prints("{\n    \"a\": 1\n}\n1\n"),
      ToolCall("file_display_and_two_reads")
          .given("conf.json", R"({"a":1,"b":[]})")
          .call("-r a -fd conf.json -r b")
          .prints(R"({
    "a": 1,
    "b": []
}
{
    "a": "1",
    "b": "[]"
}
)"),
      ToolCall("file_that_holds_an_array").given("conf.json", "[1,{}]").call("-f conf.json").prints(R"([
    1,
    {}
]
)"),
      ToolCall("file_that_holds_an_empty_array").given("conf.json", "[]").call("-f conf.json").prints("[]\n"),
      ToolCall("file_that_holds_a_string").given("conf.json", R"("text")").call("-f conf.json").prints("\"text\"\n"),
      ToolCall("file_that_holds_null").given("conf.json", "null").call("-f conf.json").prints("null\n"),

      // With a file that is changed: it is saved, and shown only on demand.
      ToolCall("file_and_an_edit")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_an_edit_and_a_read")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2 -r b")
          .prints("2\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_an_edit_and_a_failing_read")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2 -r c")
          .reports("--read error : Path \"c\" does not exist\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_display_and_an_edit")
          .given("conf.json", R"({"a":1})")
          .call("--fileDisplay conf.json -an b 2")
          .prints("{\n    \"a\": 1,\n    \"b\": 2\n}\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_display_and_an_edit_and_a_read")
          .given("conf.json", R"({"a":1})")
          .call("--fileDisplay conf.json -an b 2 -r b")
          .prints("{\n    \"a\": 1,\n    \"b\": 2\n}\n2\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_a_removal")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("--file conf.json -rm b")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("file_and_a_removal_and_a_read")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("--file conf.json -rm b -r a")
          .prints("1\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("file_and_a_removal_of_the_last_member")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -rm a")
          .leaves("conf.json", "{}"),

      // Any edit counts as a change, even one without effect.
      ToolCall("edit_to_the_same_value_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("-f conf.json -an a 1")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("merge_of_a_missing_file_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("-f conf.json -af missing.json")
          .reports("Could not open document: missing.json\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("merge_of_a_broken_file_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .given("more.json", R"({"b":2,)")
          .call("-f conf.json -af more.json")
          .reports("Could not parse json file more.json\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("rejected_boolean_for_a_null_rewrites_the_file")
          .given("conf.json", "{\"a\" : null}\n")
          .call("-f conf.json -ab a maybe")
          .reports(R"(Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
)")
          .leaves("conf.json", "{\n  \"a\": null\n}"),
      ToolCall("failed_removal_beside_an_edit_saves")
          .given("conf.json", R"({"a":1})")
          .call("-f conf.json -rm missing -an b 2")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),

      // Removals count as a change only when every one of them succeeds.
      ToolCall("failed_removal_shows_and_saves_nothing")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json --remove missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_is_displayed_once")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json --remove missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_behind_a_good_one_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm b -rm missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_before_a_good_one_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm missing -rm b")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("second_removal_of_the_same_key_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm b -rm b")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_and_a_read_show_the_read_alone")
          .given("conf.json", R"({"a":1,"b":2})")
          .call({"-f", "conf.json", "-rm", "b", "-rm", "missing", "-r", ""})
          .prints("{\"a\":1}\n"),
      ToolCall("removal_of_a_missing_nested_key_rewrites_the_file")
          .given("conf.json", "{\"a\" : {}}\n")
          .call("-f conf.json -rm a.missing")
          .leaves("conf.json", "{\n  \"a\": {}\n}"),
      ToolCall("removal_with_an_empty_key_path_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call({"-f", "conf.json", "-rm", ""})
          .leaves("conf.json", "{\n  \"a\": 1\n}"),

      // A file that does not exist yet.
      ToolCall("missing_file_and_an_edit")
          .call("--file conf.json --addString k v")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("missing_file_for_display_and_an_edit")
          .call("--fileDisplay conf.json --addString k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("missing_file_alone_is_not_made").call("--file conf.json").prints("{}\n"),
      ToolCall("missing_file_for_display_is_not_made").call("--fileDisplay conf.json").prints("{}\n"),
      ToolCall("missing_file_and_a_read")
          .call("--file conf.json -r k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("missing_file_and_a_failed_removal_is_not_made").call("-f conf.json -rm k").prints("{}\n"),
      ToolCall("missing_file_and_a_nested_removal_is_made").call("-f conf.json -rm a.k").leaves("conf.json", "{}"),
      ToolCall("missing_file_and_a_merge_of_a_missing_file_is_made")
          .call("-f conf.json -af missing.json")
          .reports("Could not open document: missing.json\n")
          .leaves("conf.json", "{}"),
  };
}

std::vector<ToolCall> failures() {
  return {
      // A file that does not parse is an empty object, and is overwritten only by a change.
      ToolCall("broken_file_and_an_edit")
          .given("conf.json", R"({"a":1,)")
          .call("--file conf.json --addString k v")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("broken_file_alone")
          .given("conf.json", R"({"a":1,)")
          .call("--file conf.json")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_file_for_display")
          .given("conf.json", R"({"a":1}})")
          .call("--fileDisplay conf.json")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_file_and_a_read")
          .given("conf.json", R"({"a":1} x)")
          .call("--file conf.json -r a")
          .reports("Could not parse json file conf.json\n--read error : Path \"a\" does not exist\n"),
      ToolCall("broken_file_and_a_failed_removal")
          .given("conf.json", R"({"a":1} x)")
          .call("--file conf.json -rm a")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_array_leaves_an_object")
          .given("conf.json", "[1,2")
          .call("-fd conf.json -as k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("empty_file_and_an_edit")
          .given("conf.json", "")
          .call("-f conf.json -as k v")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),

      // A failed save gives status 1 and stops nothing.
      ToolCall("failed_save")
          .call("--file no/such/conf.json -as k v")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("failed_save_after_the_display")
          .call("--fileDisplay no/such/conf.json -as k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("failed_save_before_a_failing_read")
          .call("--file no/such/conf.json -as k v -r l")
          .reports("Could not write document: no/such/conf.json\n--read error : Path \"l\" does not exist\n")
          .exits(1),
      ToolCall("failed_save_after_a_removal")
          .call("--file no/such/conf.json -rm a.b")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("path_that_cannot_be_saved_is_no_failure_without_a_change")
          .call("--file no/such/conf.json")
          .prints("{}\n"),

      // Nothing else gives a status of its own.
      ToolCall("failed_removals_and_reads_are_a_success")
          .call("-rm a -r b -r c")
          .prints("{}\n")
          .reports("--read error : Path \"b\" does not exist\n--read error : Path \"c\" does not exist\n"),

      // A clash of types and a bad number end the call before anything is shown or saved.
      ToolCall("clash_of_types")
          .given("conf.json", R"({"a":"text"})")
          .call("-fd conf.json -as a.b v -r a")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_of_types_before_a_later_edit")
          .given("conf.json", R"({"a":"text"})")
          .call("-f conf.json -as a.b v -af missing.json")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_of_types_behind_an_earlier_edit")
          .given("conf.json", R"({"a":"text"})")
          .call("-f conf.json -as k v -as a.b v")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("bad_number").given("conf.json", R"({"a":1})").call("-fd conf.json -as k v -an a abc -r k").aborts(),
      ToolCall("merged_file_that_holds_no_object")
          .given("conf.json", R"({"a":1})")
          .given("more.json", "[1]")
          .call("-fd conf.json -as k v -af more.json -r k")
          .aborts("IsObject()"),
      ToolCall("bad_number_behind_a_message")
          .given("conf.json", "{")
          .call("-f conf.json -an a 2147483648")
          .reports("Could not parse json file conf.json\n")
          .aborts(),
  };
}

const Table kRunOrder("RunOrder", order);
const Table kRunDisplayAndSave("RunDisplayAndSave", displayAndSave);
const Table kRunFailures("RunFailures", failures);

}  // namespace
}  // namespace kovalt::test
