#include "json/path/resolve_key_path.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

/// What a walk says on standard error.
enum class Report { nothing, missingMember, notFound, notFoundAndExplained };

struct WalkRow : Row {
  std::string json;
  std::string path;
  std::optional<std::string> found;
  Report report = Report::nothing;
  std::string selection = {};  ///< The step that selected nothing.
};

std::vector<WalkRow> walkRows() {
  const std::string list =
      R"({"list":[{"id":7,"name":"x","sub":{"a":1}},{"id":7.5,"tags":["red",8]},{"":"e","id":"q"}]})";
  return {
      {{"no_step_is_the_root"}, R"({"a":1})", "", R"({"a":1})"},
      {{"no_step_in_a_scalar"}, "5", "", "5"},
      {{"one_step"}, R"({"a":1})", "a", "1"},
      {{"three_steps"}, R"({"a":{"b":{"c":[1]}}})", "a.b.c", "[1]"},
      {{"null_at_the_end"}, R"({"a":null})", "a", "null"},
      {{"empty_step"}, R"({"":{"":1}})", ".", "1"},
      {{"empty_step_at_the_end"}, R"({"a":{"":2}})", "a.", "2"},
      {{"first_of_two_members"}, R"({"a":{"b":1},"a":{"b":2}})", "a.b", "1"},
      {{"only_the_first_of_two_members"}, R"({"a":{"x":1},"a":{"b":2}})", "a.b", std::nullopt, Report::missingMember},
      {{"member_of_digits"}, R"({"items":{"0":"z"}})", "items.0", R"("z")"},
      {{"missing_first_step"}, R"({"a":1})", "b", std::nullopt, Report::missingMember},
      {{"missing_last_step"}, R"({"a":{}})", "a.b", std::nullopt, Report::missingMember},
      {{"missing_step_in_the_middle"}, R"({"a":{}})", "a.b.c", std::nullopt, Report::missingMember},
      {{"missing_empty_step"}, R"({"a":{}})", "a..b", std::nullopt, Report::missingMember},
      {{"dotted_name_is_not_reached"}, R"({"a.b":1})", "a.b", std::nullopt, Report::missingMember},
      {{"step_into_a_string"}, R"({"a":"s"})", "a.b", std::nullopt, Report::missingMember},
      {{"step_into_a_number"}, R"({"a":1})", "a.b", std::nullopt, Report::missingMember},
      {{"step_into_null"}, R"({"a":null})", "a.b", std::nullopt, Report::missingMember},
      {{"step_into_true"}, R"({"a":true})", "a.b", std::nullopt, Report::missingMember},
      {{"step_into_an_array"}, R"({"a":[1,2]})", "a.0", std::nullopt, Report::missingMember},
      {{"step_into_a_scalar_root"}, "5", "a", std::nullopt, Report::missingMember},
      {{"empty_step_into_an_array"}, R"({"a":[]})", "a.", std::nullopt, Report::missingMember},

      {{"selection"}, list, "list.id=7", R"({"id":7,"name":"x","sub":{"a":1}})"},
      {{"selection_then_member"}, list, "list.id=7.name", R"("x")"},
      {{"selection_then_two_members"}, list, "list.name=x.sub.a", "1"},
      {{"selection_by_an_item"}, list, "list.tags=8.id", "7.5"},
      {{"selection_with_an_empty_key"}, list, "list.=e.id", R"("q")"},
      {{"selection_of_the_root"}, R"([{"a":1,"b":2}])", "a=1.b", "2"},
      {{"selection_in_a_selection"}, R"([{"a":1,"l":[{"b":2,"c":3}]}])", "a=1.l.b=2.c", "3"},
      {{"selection_at_the_first_equals_sign"}, R"([{"a":"b=c","d":4}])", "a=b=c.d", "4"},
      {{"selection_with_an_empty_value"}, R"([{"a":"","d":4}])", "a=.d", "4"},
      {{"literal_member_is_not_reached"}, R"({"a=1":2})", "a=1", std::nullopt, Report::notFound, "a=1"},
      {{"selection_without_match"}, list, "list.id=8.name", std::nullopt, Report::notFound, "id=8"},
      {{"selection_value_cut_at_its_dot"}, list, "list.id=7.5", std::nullopt, Report::missingMember},
      {{"selection_in_an_object"}, R"({"a":{"b":1}})", "a.b=1", std::nullopt, Report::notFound, "b=1"},
      {{"selection_in_a_string"}, R"({"a":"b=1"})", "a.b=1.c", std::nullopt, Report::notFound, "b=1"},
      {{"selection_among_scalars"}, R"({"a":[1,2]})", "a.b=1", std::nullopt, Report::notFoundAndExplained, "b=1"},
      {{"selection_behind_a_selection"}, R"([{"a":1}])", "a=1.b=2", std::nullopt, Report::notFound, "b=2"},
      {{"missing_member_before_a_selection"}, R"({"a":1})", "list.id=7", std::nullopt, Report::missingMember},
      {{"missing_member_behind_a_selection"}, list, "list.id=7.none", std::nullopt, Report::missingMember},
  };
}

std::string selectionErrors(const WalkRow& row) {
  std::string notFound = "Kovalt path not found with refKey=refValue \"" + row.selection + "\"\n";
  switch (row.report) {
    case Report::notFound:
      return notFound;
    case Report::notFoundAndExplained:
      return notFound +
             "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
             "refKey must be a bool/number/string/array of numbers/strings.\n";
    case Report::nothing:
    case Report::missingMember:
      break;
  }
  return "";
}

class Walk : public testing::TestWithParam<WalkRow> {};

TEST_P(Walk, EndsAtTheSameValueQuietlyAndReporting) {
  const WalkRow& row = GetParam();
  Document document = parsed(row.json);
  const KeyPath path(row.path, ".");
  const Value* found = nullptr;
  const Value* read = nullptr;
  Lookups lookups;
  const Printed quiet = capture([&] { found = resolveExisting(path, document, lookups); });
  const Printed reporting = capture([&] { read = resolveForRead(path, document, lookups); });

  EXPECT_EQ(found, read);
  ASSERT_EQ(found != nullptr, row.found.has_value());
  if (found != nullptr) {
    EXPECT_EQ(jsonOf(*found), *row.found);
  }
  EXPECT_EQ(quiet.errors, selectionErrors(row));
  EXPECT_EQ(reporting.errors, row.report == Report::missingMember
                                  ? "--read error : Path \"" + row.path + "\" does not exist\n"
                                  : selectionErrors(row));
  EXPECT_EQ(quiet.output + reporting.output, "");
  EXPECT_EQ(jsonOf(document), jsonOf(parsed(row.json))) << "a walk changes nothing";
}

INSTANTIATE_TEST_SUITE_P(ResolveKeyPath, Walk, testing::ValuesIn(walkRows()), rowName<WalkRow>);

TEST(ResolveKeyPath, GivesTheValueInsideTheDocument) {
  Document document = parsed(R"({"a":{"b":1}})");
  Lookups lookups;
  EXPECT_EQ(resolveExisting(KeyPath("", "."), document, lookups), &document);
  EXPECT_EQ(resolveForRead(KeyPath("", "."), document, lookups), &document);
  EXPECT_EQ(resolveExisting(KeyPath("a.b", "."), document, lookups), &document["a"]["b"]);
}

}  // namespace
}  // namespace kovalt::test
