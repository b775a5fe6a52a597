// Merges of objects, arrays and scalars, and of clashing types.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

/// A file with `source` is merged into the document `target`, which becomes `merged`.
ToolCall merging(const std::string& name, const std::string& target, const std::string& source,
                 const std::string& merged) {
  return changed(name, target, "--addFile s.json", merged).given("s.json", source);
}

/// A file with `source` is merged into the document `target`, and two types clash under the name `key`.
ToolCall clashingFile(const std::string& name, const std::string& target, const std::string& source,
                      const std::string& key) {
  return clashing(name, target, "--addFile s.json", key).given("s.json", source);
}

/// `count` members n0, n1, ... with one value, each with its comma.
std::string many(int count, const std::string& value) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += "\"n" + std::to_string(i) + "\":" + value + ",";
  }
  return text;
}

std::vector<ToolCall> merged() {
  return {
      merging("objects_are_merged_and_arrays_concatenated", R"({"a":{"c":2},"l":[0]})", R"({"a":{"b":1},"l":[1]})",
              R"({"a":{"c":2,"b":1},"l":[0,1]})"),
      merging("new_members_follow_in_the_order_of_the_file", R"({"z":1,"a":2})", R"({"y":3,"a":4,"b":5})",
              R"({"z":1,"a":4,"y":3,"b":5})"),
      merging("objects_are_merged_at_any_depth", R"({"a":{"b":{"c":{"x":1}}}})", R"({"a":{"b":{"c":{"y":2}}}})",
              R"({"a":{"b":{"c":{"x":1,"y":2}}}})"),
      merging("new_object_is_copied_whole", R"({})", R"({"a":{"b":[-9223372036854775808,{"c":null}],"d":0.5}})",
              R"({"a":{"b":[-9223372036854775808,{"c":null}],"d":0.5}})"),
      merging("arrays_keep_equal_elements", R"({"l":[1,2]})", R"({"l":[2,1]})", R"({"l":[1,2,2,1]})"),
      merging("objects_in_arrays_are_not_merged", R"({"l":[{"a":1}]})", R"({"l":[{"b":2},[3],"x",null]})",
              R"({"l":[{"a":1},{"b":2},[3],"x",null]})"),
      merging("empty_containers_add_nothing", R"({"a":{"b":1},"l":[1]})", R"({"a":{},"l":[]})",
              R"({"a":{"b":1},"l":[1]})"),
      merging("scalars_of_one_type_are_replaced", R"({"s":"x","i":1,"d":2.5,"t":true,"f":false,"n":null})",
              R"({"s":"y","i":2.5,"d":-1,"t":true,"f":false,"n":null})",
              R"({"s":"y","i":2.5,"d":-1,"t":true,"f":false,"n":null})"),
      merging("names_that_differ", R"({"a":1,"bc":2})", R"({"A":"case","b":"length","a\u0000b":"NUL"})",
              R"({"a":1,"bc":2,"A":"case","b":"length","a\u0000b":"NUL"})"),
      merging("names_that_are_equal", R"({"\u0041\/":1,"":2})", R"({"A/":3,"":4})", R"({"A/":3,"":4})"),
      merging("dot_in_a_name", R"({"a":{"b":1}})", R"({"a.b":2})", R"({"a":{"b":1},"a.b":2})"),
      merging("equal_names_of_the_file_are_merged", R"({})", R"({"a":1,"l":[1],"b":2,"a":3,"l":[2]})",
              R"({"a":3,"l":[1,2],"b":2})"),
      merging("equal_names_of_an_object_of_the_file_are_merged", R"({"o":{}})", R"({"o":{"a":1,"a":2}})",
              R"({"o":{"a":2}})"),
      merging("object_is_merged_into_a_new_one_with_equal_names", R"({})", R"({"o":{"a":1,"a":2},"o":{"a":3,"b":4}})",
              R"({"o":{"a":3,"a":2,"b":4}})"),
      merging("equal_names_of_a_new_object_are_kept", R"({})", R"({"o":{"a":1,"a":2}})", R"({"o":{"a":1,"a":2}})"),
      ToolCall("first_of_equal_names_is_merged_into")
          .given("f.json", R"({"a":1,"a":"x","l":[0],"l":[9]})")
          .given("s.json", R"({"a":3,"l":[1],"l":[2]})")
          .call("--file f.json --addFile s.json --read ''")
          .printsLine(R"({"a":3,"a":"x","l":[0,1,2],"l":[9]})")
          .leaves("f.json", R"({
  "a": 3,
  "a": "x",
  "l": [
    0,
    1,
    2
  ],
  "l": [
    9
  ]
})"),
      ToolCall("first_of_equal_names_among_many")
          .given("one.json", "{\"o\":{" + many(40, "0") + many(40, "1") + "\"z\":0}}")
          .given("two.json", "{" + many(40, "2") + "\"z\":3}")
          .call("-af one.json -afat o two.json -r o")
          .printsLine("{" + many(40, "2") + many(40, "1") + "\"z\":3}"),
      merging("new_names_are_found_again_among_many", "{}", "{" + many(60, "1") + many(60, "2") + "\"z\":3}",
              "{" + many(60, "2") + "\"z\":3}"),
  };
}

std::vector<ToolCall> clashes() {
  return {
      clashingFile("true_for_false", R"({"a":false})", R"({"a":true})", "a"),
      clashingFile("false_for_true", R"({"a":true})", R"({"a":false})", "a"),
      clashingFile("null_for_a_string", R"({"a":"x"})", R"({"a":null})", "a"),
      clashingFile("string_for_null", R"({"a":null})", R"({"a":"x"})", "a"),
      clashingFile("string_for_a_number", R"({"a":1})", R"({"a":"1"})", "a"),
      clashingFile("number_for_a_boolean", R"({"a":true})", R"({"a":1})", "a"),
      clashingFile("object_for_an_array", R"({"a":[]})", R"({"a":{}})", "a"),
      clashingFile("array_for_an_object", R"({"a":{}})", R"({"a":[]})", "a"),
      clashingFile("array_for_a_string", R"({"a":"x"})", R"({"a":["x"]})", "a"),
      clashingFile("inner_member_is_named", R"({"a":{"b":{"c":1}}})", R"({"a":{"b":{"c":"x"}}})", "c"),
      clashingFile("empty_name", R"({"":1})", R"({"":"x"})", ""),
      clashingFile("name_with_a_nul_is_printed_whole", R"({"a\u0000b":1})", R"({"a\u0000b":"x"})",
                   std::string("a\0b", 3)),
      clashingFile("equal_names_of_the_file", R"({})", R"({"a":1,"a":"x"})", "a"),
      clashingFile("first_clash_is_reported_and_nothing_saved", R"({"a":1,"b":2,"c":3})",
                   R"({"a":4,"n":5,"c":"x","b":"y","o":6})", "c"),
  };
}

const Table kMerging("Merging", merged);
const Table kMergingClashes("MergingClashes", clashes);

}  // namespace
}  // namespace kovalt::test
