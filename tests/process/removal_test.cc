// Removals, the removal of objects that are then empty, and which removals count as a change.

#include "document_rows.h"

namespace kovalt::test {
namespace {

/// A call on the file f.json whose removals count as a change, so that it is saved.
ToolCall saved(const std::string& name, const std::string& before, const std::string& after) {
  return ToolCall(name).given("f.json", before).leaves("f.json", after);
}

/// A call on the file f.json whose removals do not count as a change: it prints `line` and saves nothing.
ToolCall notSaved(const std::string& name, const std::string& before, const std::string& line) {
  return ToolCall(name).given("f.json", before).printsLine(line);
}

std::vector<ToolCall> removals() {
  return {
      changed("last_member_moves_to_the_place_of_the_first", R"({"a":1,"b":2,"c":3})", "-rm a", R"({"c":3,"b":2})"),
      changed("last_member_moves_to_the_place_of_another", R"({"a":1,"b":2,"c":3,"d":4})", "-rm b",
              R"({"a":1,"d":4,"c":3})"),
      changed("removal_of_the_last_member_keeps_the_order", R"({"a":1,"b":2,"c":3})", "-rm c", R"({"a":1,"b":2})"),
      changed("each_removal_moves_the_last_member", R"({"a":1,"b":2,"c":3,"d":4})", "-rm a -rm b", R"({"d":4,"c":3})"),
      changed("names_are_compared_whole", R"({"ab":1,"A":2,"a\u0000":3})", "-rm a", R"({"ab":1,"A":2,"a\u0000":3})"),
      changed("nested_removal_keeps_empty_objects", R"({"a":{"b":{"c":1}},"z":0})", "-rm a.b.c",
              R"({"a":{"b":{}},"z":0})"),
      changed("nested_removal_moves_the_last_member_of_its_object", R"({"o":{"a":1,"b":2,"c":3},"z":0})", "-rm o.a",
              R"({"o":{"c":3,"b":2},"z":0})"),
      changed("empty_names", R"({"":{"":1,"a":2}})", "-rm .", R"({"":{"a":2}})"),

      // Steps to anything but an object are skipped: the next step is looked up in the same object.
      changed("step_to_a_string_is_skipped", R"({"a":"s","b":1})", "-rm a.b", R"({"a":"s"})"),
      changed("step_to_an_array_is_skipped", R"({"a":[{"b":1}],"b":1})", "-rm a.b", R"({"a":[{"b":1}]})"),
      changed("empty_steps_are_skipped", R"({"a":{"b":1}})", "-rm a..b", R"({"a":{}})"),
      changed("missing_steps_are_skipped", R"({"x":{"k":1},"k":2})", "-rm no.x.no.k", R"({"x":{},"k":2})"),
      changed("selections_are_member_names", R"({"id=1":{"k":2},"l":[{"id":1,"k":2}],"id=2":3})",
              "-rm id=1.k -rm l.id=1.k -rm id=2", R"({"id=1":{},"l":[{"id":1,"k":2}]})"),

      ToolCall("first_of_equal_names_is_removed")
          .given("f.json", R"({"a":1,"b":2,"a":3})")
          .call("--file f.json --remove a")
          .leaves("f.json", R"({
  "a": 3,
  "b": 2
})"),
      ToolCall("first_of_equal_names_is_entered")
          .given("f.json", R"({"a":{"k":1},"a":{"k":2}})")
          .call("--file f.json --remove a.k")
          .leaves("f.json", R"({
  "a": {},
  "a": {
    "k": 2
  }
})"),
      ToolCall("object_after_a_string_of_its_name_is_not_entered")
          .given("f.json", R"({"a":"s","a":{"k":1},"k":2})")
          .call("--file f.json --remove a.k --read ''")
          .printsLine(R"({"a":"s","a":{"k":1}})")
          .leaves("f.json", R"({
  "a": "s",
  "a": {
    "k": 1
  }
})"),

      // A single step needs an object.
      ToolCall("root_array_aborts").given("f.json", R"([{"a":1}])").call("--fileDisplay f.json --remove a").aborts(),
      ToolCall("string_root_aborts").call("--addString '' x --remove a").aborts(),
      ToolCall("null_root_aborts").given("f.json", "null").call("--file f.json --removeAndClear a --read ''").aborts(),
  };
}

std::vector<ToolCall> clearingRemovals() {
  return {
      changed("emptied_objects_are_removed_up_to_the_root", R"({"a":{"b":{"c":{"d":1}}}})", "-rmc a.b.c.d", "{}"),
      changed("emptied_objects_are_removed_up_to_one_with_members", R"({"x":{"y":{"z":1},"w":2}})", "-rmc x.y.z",
              R"({"x":{"w":2}})"),
      changed("object_with_members_stays", R"({"x":{"y":{"z":1,"v":2}}})", "-rmc x.y.z", R"({"x":{"y":{"v":2}}})"),
      changed("clearing_moves_the_last_member", R"({"o":{"k":1},"p":2,"q":3})", "-rmc o.k", R"({"q":3,"p":2})"),
      changed("other_empty_containers_stay", R"({"o":{"k":1},"e":{},"l":[]})", "-rmc o.k", R"({"l":[],"e":{}})"),
      changed("single_step_clears_nothing", R"({"a":1,"e":{}})", "-rmc a", R"({"e":{}})"),
      changed("missing_member_clears_nothing", R"({"a":{"b":{}}})", "-rmc a.b.k", R"({"a":{"b":{}}})"),
      changed("missing_member_after_a_skipped_step", R"({"a":"s"})", "-rmc a.b", R"({"a":"s"})"),
      changed("empty_path_clears_nothing", R"({"a":{}})", "-rmc ''", R"({"a":{}})"),
      changed("selection_is_a_member_name", R"({"id=1":{"k":2}})", "-rmc id=1.k", "{}"),
      changed("removals_run_in_their_order", R"({"o":{"a":1,"b":2},"p":{"a":1,"b":2}})",
              "-rmc o.a -rm o.b -rm p.b -rmc p.a", R"({"o":{}})"),
      ToolCall("first_of_equal_names_is_cleared")
          .given("f.json", R"({"a":{"k":1},"b":2,"a":{"k":3}})")
          .call("--file f.json --removeAndClear a.k --read ''")
          .printsLine(R"({"a":{"k":3},"b":2})")
          .leaves("f.json", R"({
  "a": {
    "k": 3
  },
  "b": 2
})"),

      // Clearing aborts if a step was skipped and a member was removed.
      ToolCall("skipped_string").given("f.json", R"({"a":"s","b":1})").call("-fd f.json -rmc a.b -r a").aborts(),
      ToolCall("skipped_missing_step").given("f.json", R"({"b":1,"c":2})").call("-f f.json -rmc x.b").aborts(),
      ToolCall("step_skipped_after_an_entered_one")
          .given("f.json", R"({"x":{"k":1,"l":2}})")
          .call("--file f.json --removeAndClear x.no.k")
          .aborts(),
      ToolCall("step_skipped_before_objects_with_members")
          .given("f.json", R"({"b":{"c":{"k":1,"l":2}}})")
          .call("--fileDisplay f.json --removeAndClear no.b.c.k --read ''")
          .aborts(),
  };
}

std::vector<ToolCall> changes() {
  return {
      notSaved("missing_member", "{ }", "{}").call("-f f.json -rm k"),
      notSaved("missing_member_is_displayed_once", "{ }", "{}").call("-fd f.json -rm k"),
      notSaved("missing_member_of_a_clearing_removal", "{ }", "{}").call("-f f.json -rmc k"),
      notSaved("failed_removal_after_a_good_one", R"({"a":1})", "{}").call("-f f.json -rm a -rm k"),
      notSaved("failed_removal_before_a_good_one", R"({"a":1})", "{}").call("-f f.json -rm k -rmc a"),
      notSaved("failed_removal_after_a_clearing_one", R"({"o":{"a":1}})", "{}").call("-f f.json -rmc o.a -rm k"),
      notSaved("second_removal_of_one_member", R"({"a":1})", "{}").call("-f f.json -rm a -rm a"),
      notSaved("failed_removal_and_a_read", R"({"a":1,"b":2})", "2").call("-f f.json -rm a -rm k -r b"),
      ToolCall("removal_without_a_file").call("-rm k").printsLine("{}"),
      saved("second_of_equal_names", R"({"a":1,"a":2})", "{}").call("-f f.json -rm a -rm a"),
      saved("failed_removal_and_an_edit", R"({"a":1})", "{}").call("-f f.json -rm k -ao ''"),
      saved("missing_nested_member", "{ }", "{}").call("-f f.json -rm a.k"),
      saved("missing_nested_member_of_a_clearing_removal", "{ }", "{}").call("-f f.json -rmc a.b.k"),
      saved("nested_member_of_a_root_array", "[ ]", "[]").call("-f f.json -rm a.b -rmc a.b"),
      saved("empty_path", "7 ", "7").call("-f f.json -rm ''"),
      saved("empty_path_of_a_clearing_removal", "7 ", "7").call("-f f.json -rmc ''"),
      saved("addition_of_the_removed_member", R"({"a":1})", "{}").call("-f f.json -rm a -as a v"),
      saved("removal_and_file_display", R"({"a":1})", "{}").call("-fd f.json -rm a").printsLine("{}"),
      saved("removal_and_a_read", R"({"a":1})", "{}").call("-f f.json -rm a -r ''").printsLine("{}"),
  };
}

const Table kRemoval("Removal", removals);
const Table kClearingRemoval("ClearingRemoval", clearingRemovals);
const Table kChangesByRemoval("ChangesByRemoval", changes);

}  // namespace
}  // namespace kovalt::test
