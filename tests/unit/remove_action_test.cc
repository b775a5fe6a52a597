#include "actions/edit/remove_action.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

static_assert(std::has_virtual_destructor_v<RemoveAction>, "actions are deleted through it");

struct RemovalRow : Row {
  std::string json;
  std::string path;
  bool succeeds;
  std::string kept;     ///< The document after a removal that keeps empty parents.
  std::string cleared;  ///< The document after one that clears them.
};

/// A row in which there is no parent to clear.
RemovalRow same(const std::string& name, const std::string& json, const std::string& path, bool succeeds,
                const std::string& after) {
  return {{name}, json, path, succeeds, after, after};
}

std::vector<RemovalRow> removalRows() {
  return {
      same("no_step", R"({"a":1})", "", true, R"({"a":1})"),
      same("no_step_in_an_array", "[1]", "", true, "[1]"),

      // One step.
      same("only_member", R"({"a":1})", "a", true, "{}"),
      same("first_of_two", R"({"a":1,"b":2})", "a", true, R"({"b":2})"),
      same("last_of_three", R"({"a":1,"b":2,"c":3})", "c", true, R"({"a":1,"b":2})"),
      same("last_takes_the_place_of_the_first", R"({"a":1,"b":2,"c":3})", "a", true, R"({"c":3,"b":2})"),
      same("last_takes_the_place_of_the_second", R"({"a":1,"b":2,"c":3,"d":4})", "b", true, R"({"a":1,"d":4,"c":3})"),
      same("container", R"({"a":{"b":[1,{"c":2}]},"d":3})", "a", true, R"({"d":3})"),
      same("null_member", R"({"a":null})", "a", true, "{}"),
      same("missing", R"({"a":1})", "b", false, R"({"a":1})"),
      same("missing_in_an_empty_root", "{}", "a", false, "{}"),
      same("empty_parent_that_was_there_stays", R"({"o":{},"a":1})", "a", true, R"({"o":{}})"),
      same("first_of_two_of_one_name", R"({"a":1,"b":2,"a":3})", "a", true, R"({"a":3,"b":2})"),
      same("beginning_of_a_name", R"({"ab":1})", "a", false, R"({"ab":1})"),
      same("name_and_a_tail", R"({"a":1})", "ab", false, R"({"a":1})"),
      same("selection_is_a_plain_name", R"({"id=1":2,"a":3})", "id=1", true, R"({"a":3})"),
      same("other_case", R"({"A":1})", "a", false, R"({"A":1})"),
      same("only_up_to_the_nul", R"({"a\u0000b":1})", "a", false, R"({"a\u0000b":1})"),

      // Several steps.
      {{"last_member_of_an_object"}, R"({"obj":{"key":"value"}})", "obj.key", true, R"({"obj":{}})", "{}"},
      {{"two_levels"}, R"({"x":{"y":{"z":1}}})", "x.y.z", true, R"({"x":{"y":{}}})", "{}"},
      {{"upper_parent_holds_more"},
       R"({"x":{"y":{"z":1},"w":2}})",
       "x.y.z",
       true,
       R"({"x":{"y":{},"w":2}})",
       R"({"x":{"w":2}})"},
      {{"cleared_parent_is_replaced_by_the_last"},
       R"({"x":{"y":{"z":1},"v":1,"w":2}})",
       "x.y.z",
       true,
       R"({"x":{"y":{},"v":1,"w":2}})",
       R"({"x":{"w":2,"v":1}})"},
      same("lower_parent_holds_more", R"({"x":{"y":{"z":1,"w":2}}})", "x.y.z", true, R"({"x":{"y":{"w":2}}})"),
      {{"root_holds_more"}, R"({"a":0,"x":{"y":1},"b":0})", "x.y", true, R"({"a":0,"x":{},"b":0})", R"({"a":0,"b":0})"},
      {{"empty_names"}, R"({"":{"":1}})", ".", true, R"({"":{}})", "{}"},
      {{"equal_names"}, R"({"a":{"a":{"a":1}}})", "a.a.a", true, R"({"a":{"a":{}}})", "{}"},
      {{"object_of_an_array_is_no_parent"},
       R"({"x":{"l":[{}],"y":1}})",
       "x.l",
       true,
       R"({"x":{"y":1}})",
       R"({"x":{"y":1}})"},
      {{"container_is_removed_whole"}, R"({"x":{"y":{"z":1}}})", "x.y", true, R"({"x":{}})", "{}"},
      same("missing_last_step", R"({"a":{"b":1}})", "a.c", true, R"({"a":{"b":1}})"),
      same("missing_last_step_in_an_empty_object", R"({"a":{}})", "a.c", true, R"({"a":{}})"),
      same("order_in_the_parent", R"({"x":{"a":1,"b":2,"c":3}})", "x.a", true, R"({"x":{"c":3,"b":2}})"),
      {{"first_of_two_parents_of_one_name"},
       R"({"o":{"k":1},"o":{"k":2}})",
       "o.k",
       true,
       R"({"o":{},"o":{"k":2}})",
       R"({"o":{"k":2}})"},
      same("name_left_over_once_more", R"({"x":{"k":1,"k":2}})", "x.k", true, R"({"x":{"k":2}})"),

      // Skipped steps whose last is missing too.
      same("nothing_on_the_way", R"({"a":1})", "x.y.z", true, R"({"a":1})"),
      same("string_on_the_way", R"({"a":"s"})", "a.b", true, R"({"a":"s"})"),
      same("array_on_the_way", R"({"a":[{"b":1}]})", "a.b", true, R"({"a":[{"b":1}]})"),
      same("array_index_on_the_way", R"({"a":[{"b":1}]})", "a.0.b", true, R"({"a":[{"b":1}]})"),
      same("selection_on_the_way", R"({"l":[{"id":1,"b":2}]})", "l.id=1.b", true, R"({"l":[{"id":1,"b":2}]})"),
      same("array_as_root", R"([{"a":{"b":1}}])", "a.b", true, R"([{"a":{"b":1}}])"),
      same("scalar_as_root", "5", "a.b", true, "5"),
  };
}

class Removal : public testing::TestWithParam<RemovalRow> {
 protected:
  static void expect(EmptyParents emptyParents, const std::string& after) {
    Document document = parsed(GetParam().json);
    const RemoveAction action(GetParam().path, emptyParents);
    bool succeeded = false;
    EditedDocument edited(document);
    const Printed printed = capture([&] { succeeded = action.execute(edited); });
    EXPECT_EQ(succeeded, GetParam().succeeds);
    EXPECT_EQ(jsonOf(document), after);
    EXPECT_EQ(printed.output + printed.errors, "");
  }
};

TEST_P(Removal, KeepsEmptyParents) { expect(EmptyParents::keep, GetParam().kept); }

TEST_P(Removal, ClearsEmptyParents) { expect(EmptyParents::clear, GetParam().cleared); }

INSTANTIATE_TEST_SUITE_P(RemoveAction, Removal, testing::ValuesIn(removalRows()), rowName<RemovalRow>);

// Where a step is skipped, the rest of the path is looked up in the same object.

struct SkippedRow : Row {
  std::string json;
  std::string path;
  std::string after;
};

std::vector<SkippedRow> skippedRows() {
  return {
      {{"missing_first_step"}, R"({"b":1})", "a.b", "{}"},
      {{"string_in_place_of_the_first_step"}, R"({"a":"s","b":1})", "a.b", R"({"a":"s"})"},
      {{"array_in_place_of_the_first_step"}, R"({"a":[{"b":2}],"b":1})", "a.b", R"({"a":[{"b":2}]})"},
      {{"two_missing_steps"}, R"({"c":1,"d":2})", "a.b.c", R"({"d":2})"},
      {{"missing_step_in_the_middle"}, R"({"a":{"c":1,"d":2}})", "a.b.c", R"({"a":{"d":2}})"},
      {{"missing_step_before_a_found_one"}, R"({"b":{"c":1,"d":2}})", "a.b.c", R"({"b":{"d":2}})"},
      {{"emptied_object_behind_a_missing_step"}, R"({"b":{"c":1}})", "a.b.c", R"({"b":{}})"},
      {{"selection_in_the_middle"}, R"({"a":{"c":1}})", "a.id=1.c", R"({"a":{}})"},
      {{"empty_step_in_the_middle"}, R"({"a":{"b":1}})", "a..b", R"({"a":{}})"},
  };
}

class SkippedStepDeathTest : public testing::TestWithParam<SkippedRow> {};

TEST_P(SkippedStepDeathTest, IsNoErrorWithoutClearing) {
  Document document = parsed(GetParam().json);
  EditedDocument edited(document);
  EXPECT_TRUE(RemoveAction(GetParam().path, EmptyParents::keep).execute(edited));
  EXPECT_EQ(jsonOf(document), GetParam().after);
}

TEST_P(SkippedStepDeathTest, EndsTheProcessWhenClearing) {
  Document document = parsed(GetParam().json);
  const RemoveAction action(GetParam().path, EmptyParents::clear);
  EditedDocument edited(document);
  EXPECT_DEATH(action.execute(edited), "");
}

INSTANTIATE_TEST_SUITE_P(RemoveAction, SkippedStepDeathTest, testing::ValuesIn(skippedRows()), rowName<SkippedRow>);

TEST(RemoveActionDeathTest, NeedsAnObjectAsRootForASingleStep) {
  for (const char* json : {"[]", R"([{"a":1}])", R"("a")", "1", "true", "null"}) {
    for (const EmptyParents emptyParents : {EmptyParents::keep, EmptyParents::clear}) {
      SCOPED_TRACE(json);
      Document document = parsed(json);
      const RemoveAction action("a", emptyParents);
      EditedDocument edited(document);
      EXPECT_DEATH(action.execute(edited), "IsObject\\(\\)");
    }
  }
}

TEST(RemoveAction, ChangesNothingWhenItIsRepeated) {
  Document document = parsed(R"({"a":{"b":1,"c":2},"d":3})");
  const RemoveAction several("a.b", EmptyParents::clear);
  EditedDocument edited(document);
  EXPECT_TRUE(several.execute(edited));
  EXPECT_TRUE(several.execute(edited));
  EXPECT_EQ(jsonOf(document), R"({"a":{"c":2},"d":3})");
  const RemoveAction single("d", EmptyParents::clear);
  EXPECT_TRUE(single.execute(edited));
  EXPECT_FALSE(single.execute(edited));
  EXPECT_EQ(jsonOf(document), R"({"a":{"c":2}})");
}

}  // namespace
}  // namespace kovalt::test
