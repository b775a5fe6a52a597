// Removals, with and without the clearing of objects left empty.

#include "tool_call.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> removeRows() {
  return {
      // One step.
      ToolCall("last_member_takes_the_place_of_the_first")
          .given("f.json", R"({"a":1,"b":2,"c":3})")
          .call("--file f.json --remove a")
          .leaves("f.json", "{\n  \"c\": 3,\n  \"b\": 2\n}"),
      ToolCall("last_member_takes_the_place_of_a_middle_one")
          .given("f.json", R"({"a":1,"b":2,"c":3,"d":4})")
          .call("-f f.json -rm b")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"d\": 4,\n  \"c\": 3\n}"),
      ToolCall("removing_the_last_member_keeps_the_order")
          .given("f.json", R"({"a":1,"b":2,"c":3})")
          .call("--file f.json --remove c")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("removing_the_only_member")
          .given("f.json", R"({"a":{"b":1}})")
          .call("--file f.json --remove a")
          .leaves("f.json", "{}"),
      ToolCall("two_removals_each_move_the_last_member")
          .given("f.json", R"({"a":1,"b":2,"c":3,"d":4})")
          .call("--file f.json --remove a --remove b")
          .leaves("f.json", "{\n  \"d\": 4,\n  \"c\": 3\n}"),
      ToolCall("first_of_two_equal_members_is_removed")
          .given("f.json", R"({"a":1,"b":2,"a":3})")
          .call("--file f.json --remove a")
          .leaves("f.json", "{\n  \"a\": 3,\n  \"b\": 2\n}"),
      ToolCall("member_with_the_empty_name")
          .given("f.json", R"({"":{"":1,"a":2}})")
          .call("--file f.json --remove .")
          .leaves("f.json", "{\n  \"\": {\n    \"a\": 2\n  }\n}"),
      ToolCall("removal_compares_whole_names")
          .given("f.json", R"({"ab":1,"A":2,"a\u0000":3})")
          .call("--file f.json --remove a")
          .prints("{\n    \"ab\": 1,\n    \"A\": 2,\n    \"a\\u0000\": 3\n}\n"),
      ToolCall("missing_member_is_a_failure_and_shown")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --remove k")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("missing_member_with_a_read_shows_only_the_read")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --remove k --read a")
          .prints("1\n"),
      ToolCall("missing_member_beside_an_addition_is_saved")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --remove k --addString b v")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"b\": \"v\"\n}"),
      ToolCall("removal_without_a_file_is_shown").call("--remove k").prints("{}\n"),
      ToolCall("removal_with_file_display_is_shown_and_saved")
          .given("f.json", R"({"a":1,"b":2})")
          .call("--fileDisplay f.json --remove a")
          .prints("{\n    \"b\": 2\n}\n")
          .leaves("f.json", "{\n  \"b\": 2\n}"),
      ToolCall("removal_from_a_root_array")
          .given("f.json", R"([{"a":1}])")
          .call("--fileDisplay f.json --remove a")
          .aborts(),
      ToolCall("removal_from_a_string_root").call({"--addString", "", "x", "--remove", "a"}).aborts(),
      ToolCall("removal_from_a_null_root")
          .given("f.json", "null")
          .call({"--file", "f.json", "--removeAndClear", "a", "--read", ""})
          .aborts(),

      // No step.
      ToolCall("empty_path_removes_nothing_and_is_saved")
          .given("f.json", R"({"a":1})")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "{\n  \"a\": 1\n}"),
      ToolCall("empty_path_on_a_root_array_is_saved")
          .given("f.json", "[1]")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "[\n  1\n]"),

      // Longer paths.
      ToolCall("nested_member_leaves_an_empty_object")
          .given("f.json", R"({"obj":{"key":"value"}})")
          .call("--file f.json --remove obj.key")
          .leaves("f.json", "{\n  \"obj\": {}\n}"),
      ToolCall("nested_removal_moves_the_last_member_of_its_object")
          .given("f.json", R"({"o":{"a":1,"b":2,"c":3},"z":0})")
          .call("--file f.json --remove o.a")
          .leaves("f.json", "{\n  \"o\": {\n    \"c\": 3,\n    \"b\": 2\n  },\n  \"z\": 0\n}"),
      ToolCall("nested_object_is_removed_whole")
          .given("f.json", R"({"a":{"b":{"c":1},"d":2}})")
          .call("--file f.json --remove a.b")
          .leaves("f.json", "{\n  \"a\": {\n    \"d\": 2\n  }\n}"),
      ToolCall("missing_nested_member_is_a_success_and_saved")
          .given("f.json", R"({"a":{"b":1}})")
          .call("--file f.json --remove a.k")
          .leaves("f.json", "{\n  \"a\": {\n    \"b\": 1\n  }\n}"),
      ToolCall("missing_path_is_a_success_and_saved")
          .given("f.json", R"({"z":1})")
          .call("--file f.json --remove a.b.c")
          .leaves("f.json", "{\n  \"z\": 1\n}"),
      ToolCall("string_on_the_way_is_skipped")
          .given("f.json", R"({"a":"s","b":1})")
          .call("--file f.json --remove a.b")
          .leaves("f.json", "{\n  \"a\": \"s\"\n}"),
      ToolCall("array_on_the_way_is_skipped")
          .given("f.json", R"({"a":[{"b":1}],"b":1})")
          .call("--file f.json --remove a.b")
          .leaves("f.json", "{\n  \"a\": [\n    {\n      \"b\": 1\n    }\n  ]\n}"),
      ToolCall("missing_members_on_the_way_are_skipped")
          .given("f.json", R"({"k":1,"l":2})")
          .call("--file f.json --remove x.y.k")
          .leaves("f.json", "{\n  \"l\": 2\n}"),
      ToolCall("step_after_a_skipped_one_is_entered")
          .given("f.json", R"({"x":{"k":1},"k":2})")
          .call("--file f.json --remove no.x.no.k")
          .leaves("f.json", "{\n  \"x\": {},\n  \"k\": 2\n}"),
      ToolCall("first_of_two_equal_members_is_entered")
          .given("f.json", R"({"a":{"k":1},"a":{"k":2}})")
          .call("--file f.json --remove a.k")
          .leaves("f.json", "{\n  \"a\": {},\n  \"a\": {\n    \"k\": 2\n  }\n}"),
      ToolCall("string_before_an_equal_object_is_skipped")
          .given("f.json", R"({"a":"s","a":{"k":1},"k":2})")
          .call("--file f.json --remove a.k")
          .leaves("f.json", "{\n  \"a\": \"s\",\n  \"a\": {\n    \"k\": 1\n  }\n}"),
      ToolCall("selection_is_a_plain_name_and_skipped")
          .given("f.json", R"({"l":[{"id":1,"k":2}]})")
          .call("--file f.json --remove l.id=1.k")
          .leaves("f.json", R"({
  "l": [
    {
      "id": 1,
      "k": 2
    }
  ]
})"),
      ToolCall("selection_is_a_plain_name_and_entered")
          .given("f.json", R"({"id=1":{"k":2}})")
          .call("--file f.json --remove id=1.k")
          .leaves("f.json", "{\n  \"id=1\": {}\n}"),
      ToolCall("selection_is_a_plain_name_and_missing")
          .given("f.json", R"([{"id":1}])")
          .call("--file f.json --remove x.id=1")
          .leaves("f.json", "[\n  {\n    \"id\": 1\n  }\n]"),
      ToolCall("longer_path_on_a_root_array_is_a_success")
          .given("f.json", R"([{"b":1}])")
          .call("--file f.json --remove a.b")
          .leaves("f.json", "[\n  {\n    \"b\": 1\n  }\n]"),

      // Several removals.
      ToolCall("all_removals_must_succeed")
          .given("f.json", R"({"a":1,"b":2})")
          .call("--file f.json --remove a --remove k")
          .prints("{\n    \"b\": 2\n}\n"),
      ToolCall("removals_after_a_failed_one_still_run")
          .given("f.json", R"({"a":1,"b":2})")
          .call("--file f.json --remove k --removeAndClear a")
          .prints("{\n    \"b\": 2\n}\n"),
      ToolCall("second_removal_of_a_member_fails")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --remove a --remove a")
          .prints("{}\n"),
      ToolCall("second_removal_of_a_nested_member_succeeds")
          .given("f.json", R"({"o":{"a":1}})")
          .call("--file f.json --remove o.a --remove o.a")
          .leaves("f.json", "{\n  \"o\": {}\n}"),
      ToolCall("second_equal_member_is_removed_by_a_second_removal")
          .given("f.json", R"({"a":1,"a":2})")
          .call("--file f.json --remove a --remove a")
          .leaves("f.json", "{}"),

      // Additions come first.
      ToolCall("addition_after_the_removal_runs_before_it")
          .call("--remove obj.key --addString obj.key value")
          .prints("{\n    \"obj\": {}\n}\n"),
      ToolCall("addition_before_the_removal_runs_before_it")
          .call("--addString obj.key value --remove obj.key")
          .prints("{\n    \"obj\": {}\n}\n"),
      ToolCall("merged_members_are_removed")
          .given("g.json", R"({"a":1,"b":2})")
          .call({"--remove", "a", "--addFile", "g.json", "--read", ""})
          .prints("{\"b\":2}\n"),
      ToolCall("addition_cannot_undo_a_removal")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --remove a --addString a v")
          .leaves("f.json", "{}"),
  };
}

std::vector<ToolCall> clearRows() {
  return {
      ToolCall("clearing_goes_on_past_an_object_with_members_to_a_skipped_step")
          .given("f.json", R"({"b":{"c":{"k":1,"l":2}}})")
          .call({"--fileDisplay", "f.json", "--removeAndClear", "no.b.c.k", "--read", ""})
          .aborts(),
      ToolCall("emptied_object_is_removed")
          .given("f.json", R"({"obj":{"key":"value"}})")
          .call("--file f.json --removeAndClear obj.key")
          .leaves("f.json", "{}"),
      ToolCall("emptied_object_is_removed_short_form")
          .given("f.json", R"({"obj":{"key":"value"}})")
          .call("-f f.json -rmc obj.key")
          .leaves("f.json", "{}"),
      ToolCall("addition_runs_before_the_clearing")
          .call("--removeAndClear obj.key --addString obj.key value")
          .prints("{}\n"),
      ToolCall("clearing_goes_up_to_an_object_with_members")
          .given("f.json", R"({"x":{"y":{"z":1},"w":2}})")
          .call("--file f.json --removeAndClear x.y.z")
          .leaves("f.json", "{\n  \"x\": {\n    \"w\": 2\n  }\n}"),
      ToolCall("clearing_goes_up_to_the_root")
          .given("f.json", R"({"a":{"b":{"c":{"d":1}}}})")
          .call("--file f.json --removeAndClear a.b.c.d")
          .leaves("f.json", "{}"),
      ToolCall("object_with_other_members_stays")
          .given("f.json", R"({"x":{"y":{"z":1,"v":2}}})")
          .call("--file f.json --removeAndClear x.y.z")
          .leaves("f.json", "{\n  \"x\": {\n    \"y\": {\n      \"v\": 2\n    }\n  }\n}"),
      ToolCall("clearing_moves_the_last_member")
          .given("f.json", R"({"o":{"k":1},"p":2,"q":3})")
          .call("--file f.json --removeAndClear o.k")
          .leaves("f.json", "{\n  \"q\": 3,\n  \"p\": 2\n}"),
      ToolCall("clearing_removes_the_first_of_two_equal_members")
          .given("f.json", R"({"a":{"k":1},"b":2,"a":{"k":3}})")
          .call("--file f.json --removeAndClear a.k")
          .leaves("f.json", "{\n  \"a\": {\n    \"k\": 3\n  },\n  \"b\": 2\n}"),
      ToolCall("other_empty_objects_stay")
          .given("f.json", R"({"o":{"k":1},"e":{},"l":[]})")
          .call("--file f.json --removeAndClear o.k")
          .leaves("f.json", "{\n  \"l\": [],\n  \"e\": {}\n}"),
      ToolCall("clearing_a_single_step_only_removes_it")
          .given("f.json", R"({"a":1,"e":{}})")
          .call("--file f.json --removeAndClear a")
          .leaves("f.json", "{\n  \"e\": {}\n}"),
      ToolCall("clearing_a_missing_single_step_is_a_failure")
          .given("f.json", R"({"a":{}})")
          .call("--file f.json --removeAndClear k")
          .prints("{\n    \"a\": {}\n}\n"),
      ToolCall("clearing_removes_no_empty_object_when_the_member_is_missing")
          .given("f.json", R"({"a":{"b":{}}})")
          .call("--file f.json --removeAndClear a.b.k")
          .leaves("f.json", "{\n  \"a\": {\n    \"b\": {}\n  }\n}"),
      ToolCall("clearing_an_empty_path_does_nothing")
          .given("f.json", R"({"a":{}})")
          .call({"--file", "f.json", "--removeAndClear", ""})
          .leaves("f.json", "{\n  \"a\": {}\n}"),
      ToolCall("clearing_takes_a_selection_as_a_plain_name")
          .given("f.json", R"({"id=1":{"k":2}})")
          .call("--file f.json --removeAndClear id=1.k")
          .leaves("f.json", "{}"),
      ToolCall("clearing_over_a_skipped_step_ends_abnormally")
          .given("f.json", R"({"a":"s","b":1})")
          .call("--fileDisplay f.json --removeAndClear a.b --read a")
          .aborts(),
      ToolCall("clearing_over_a_missing_step_ends_abnormally")
          .given("f.json", R"({"b":1,"c":2})")
          .call("--file f.json --removeAndClear x.b")
          .aborts(),
      ToolCall("clearing_over_a_step_skipped_after_an_entered_one_ends_abnormally")
          .given("f.json", R"({"x":{"k":1,"l":2}})")
          .call("--file f.json --removeAndClear x.no.k")
          .aborts(),
      ToolCall("clearing_over_a_step_skipped_before_an_entered_one_ends_abnormally")
          .given("f.json", R"({"x":{"k":1,"l":2}})")
          .call("--file f.json --removeAndClear no.x.k")
          .aborts(),
      ToolCall("skipped_step_does_no_harm_when_the_member_is_missing")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --removeAndClear a.b")
          .leaves("f.json", "{\n  \"a\": \"s\"\n}"),
      ToolCall("clearing_on_a_root_array_is_a_success")
          .given("f.json", R"([{"b":1}])")
          .call("--file f.json --removeAndClear a.b")
          .leaves("f.json", "[\n  {\n    \"b\": 1\n  }\n]"),
      ToolCall("clearing_and_plain_removals_run_in_their_order")
          .given("f.json", R"({"o":{"a":1,"b":2}})")
          .call("--file f.json --removeAndClear o.a --remove o.b")
          .leaves("f.json", "{\n  \"o\": {}\n}"),
      ToolCall("plain_and_clearing_removals_run_in_their_order")
          .given("f.json", R"({"o":{"a":1,"b":2}})")
          .call("--file f.json --remove o.b --removeAndClear o.a")
          .leaves("f.json", "{}"),
      ToolCall("clearing_counts_as_a_modification_only_with_the_others")
          .given("f.json", R"({"o":{"a":1}})")
          .call("--file f.json --removeAndClear o.a --remove k")
          .prints("{}\n"),
  };
}

const Table kRemoval("Removal", removeRows);
const Table kClearingRemoval("ClearingRemoval", clearRows);

}  // namespace
}  // namespace kovalt::test
