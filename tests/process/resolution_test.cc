// The value that a key path names for a read and for an addition, and the members that an addition creates.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> reads() {
  return {
      ToolCall("missing_member").call("--read a").reports(readError("a")),
      reading("whole_path_is_reported", R"({"a":{"b":{}}})", "a.b.c.d").reports(readError("a.b.c.d")),
      reading("member_of_a_string", R"({"a":"b"})", "a.b").reports(readError("a.b")),
      reading("member_of_null", R"({"a":null})", "a.b").reports(readError("a.b")),
      reading("member_of_an_array", R"({"a":[{"b":1}]})", "a.b").reports(readError("a.b")),
      reading("member_of_a_root_array", R"([{"a":1}])", "a").reports(readError("a")),
      reading("missing_member_of_a_selected_object", R"({"l":[{"id":1}]})", "l.id=1.n").reports(readError("l.id=1.n")),
      reading("missing_member_before_a_selection", "{}", "l.id=1.n").reports(readError("l.id=1.n")),
      reading("first_of_equal_names_is_read", R"({"a":{"b":1},"a":{"b":2}})", "a.b").printsLine("1"),
      reading("second_of_equal_names_is_not_tried", R"({"a":1,"a":{"b":2}})", "a.b").reports(readError("a.b")),
  };
}

std::vector<ToolCall> additions() {
  return {
      changed("missing_objects_are_created_at_the_end", R"({"a":{"x":1},"z":2})", "-as a.b.c v",
              R"({"a":{"x":1,"b":{"c":"v"}},"z":2})"),
      changed("replaced_member_keeps_its_place", R"({"z":1,"y":2})", "-as z v -as a w", R"({"z":"v","y":2,"a":"w"})"),
      added("additions_see_earlier_ones", "-as a.b 1 -as a.c 2 -as a.b 3", R"({"a":{"b":"3","c":"2"}})"),
      ToolCall("first_of_equal_names_is_replaced")
          .given("f.json", R"({"a":1,"a":2})")
          .call("--file f.json --addString a v --read ''")
          .printsLine(R"({"a":"v","a":2})")
          .leaves("f.json", R"({
  "a": "v",
  "a": 2
})"),
      ToolCall("first_of_equal_names_receives_a_missing_member")
          .given("f.json", R"({"a":{},"a":{"b":1}})")
          .call("--file f.json --addString a.b v --read ''")
          .printsLine(R"({"a":{"b":"v"},"a":{"b":1}})")
          .leaves("f.json", R"({
  "a": {
    "b": "v"
  },
  "a": {
    "b": 1
  }
})"),

      // Selections.
      changed("member_of_a_selected_object", R"({"l":[{"id":1,"n":0},{"id":2,"n":0}]})", "-as l.id=2.n v",
              R"({"l":[{"id":1,"n":0},{"id":2,"n":"v"}]})"),
      changed("selected_object_itself", R"({"l":[{"id":1},{"id":2}]})", "-as l.id=1 v", R"({"l":["v",{"id":2}]})"),
      clashing("missing_member_of_a_selected_object", R"({"l":[{"id":1}]})", "-as l.id=1.new v", "l"),
      clashing("failed_selection", R"({"l":[{"id":1}]})", "-as l.id=2.n v", "l").reports(notFound("id=2") + clash("l")),
      clashing("selection_in_an_empty_array", R"({"l":[]})", "-as l.id=2 v", "l")
          .reports(notFound("id=2") + clash("l")),
      clashing("selection_that_cannot_compare", R"({"l":[3]})", "-as l.id=2 v", "l")
          .reports(notComparable("id=2") + clash("l")),
      changed("failed_selection_in_an_object_adds_a_member", R"({"o":{"x":1}})", "-as o.id=1 v",
              R"({"o":{"x":1,"id=1":"v"}})")
          .reports(notFound("id=1")),
      added("selection_after_a_missing_member_adds_silently", "-as l.id=1.n v", R"({"l":{"id=1":{"n":"v"}}})"),
      added("only_the_first_failed_selection_is_reported", "-as a=1.b=2 v", R"({"a=1":{"b=2":"v"}})")
          .reports(notFound("a=1")),
      added("member_named_like_a_selection_is_merged_into", "-as id=1 v -as id=1 w", R"({"id=1":"w"})")
          .reports(notFound("id=1") + notFound("id=1")),
      clashing("member_named_like_a_selection_has_another_type", R"({"id=1":"v"})", "-an id=1 5", "id=1")
          .reports(notFound("id=1") + clash("id=1")),

      // Missing members need a root object.
      ToolCall("member_of_a_string_root_aborts").call("--addString '' x --addString a b").aborts("IsObject()"),
      ToolCall("member_of_a_root_array_aborts")
          .given("f.json", "[1]")
          .call("--file f.json --addString a b")
          .aborts("IsObject()"),
      ToolCall("failed_selection_in_a_root_array_aborts")
          .given("f.json", R"([{"id":1}])")
          .call("--file f.json --addString id=2 b")
          .reports(notFound("id=2"))
          .aborts("IsObject()"),
  };
}

const Table kResolutionForReads("ResolutionForReads", reads);
const Table kResolutionForAdditions("ResolutionForAdditions", additions);

}  // namespace
}  // namespace kovalt::test
