#include "actions/edit/edit_action.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "actions/edit/add_file_at_action.h"
#include "actions/edit/additions.h"
#include "support/capture.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

static_assert(std::has_virtual_destructor_v<EditAction>, "actions are deleted through it");

bool apply(const EditAction& action, Value* target, Document& document) {
  EditedDocument edited(document);
  return action.apply(target, edited);
}

bool applyAtPath(const EditAction& action, Document& document) {
  EditedDocument edited(document);
  return kovalt::applyAtPath(action, edited);
}

Value chainOf(const EditAction& action, Document& document) {
  EditedDocument edited(document);
  return buildPathChain(action, edited);
}

TEST(EditAction, OfItselfChangesNothing) {
  for (const char* json : {R"({"a":[1]})", "[1]", R"("s")", "1", "true", "false", "null"}) {
    SCOPED_TRACE(json);
    Document document = parsed(json);
    EXPECT_TRUE(apply(EditAction("a.b"), &document, document));
    EXPECT_EQ(jsonOf(document), json);
  }
}

TEST(EditAction, OfItselfAcceptsANullTarget) {
  Document document;
  EXPECT_TRUE(apply(EditAction(""), nullptr, document));
}

TEST(EditAction, CutsItsKeyPathAtDots) {
  EXPECT_EQ(EditAction("a.b=c.d").keyPath().steps(), (std::vector<std::string>{"a", "b=c", "d"}));
  EXPECT_TRUE(EditAction("").keyPath().steps().empty());
}

// What each addition makes of a target.

struct AdditionRow : Row {
  std::shared_ptr<EditAction> action;
  std::string made;
};

std::vector<AdditionRow> additionRows() {
  using Values = std::vector<std::string>;
  return {
      {{"string"}, std::make_shared<AddStringAction>("k", "v"), R"("v")"},
      {{"empty_string"}, std::make_shared<AddStringAction>("k", ""), R"("")"},
      {{"whole_string_with_a_nul"}, std::make_shared<AddStringAction>("k", "a\0b"s), R"("a\u0000b")"},
      {{"true_word"}, std::make_shared<AddBooleanAction>("k", "TRUE"), "true"},
      {{"false_digit"}, std::make_shared<AddBooleanAction>("k", "0"), "false"},
      {{"number"}, std::make_shared<AddNumberAction>("k", " -12abc"), "-12"},
      {{"object"}, std::make_shared<AddObjectAction>("k"), "{}"},
      {{"array"}, std::make_shared<AddArrayAction>("k", Values{"a", "", "b,c"}), R"(["a","","b,c"])"},
      {{"empty_array"}, std::make_shared<AddArrayAction>("k", Values{}), "[]"},
      {{"strings_up_to_their_nuls"}, std::make_shared<AddArrayAction>("k", Values{"a\0b"s, "\0"s}), R"(["a",""])"},
      {{"array_of_booleans"}, std::make_shared<AddArrayBooleanAction>("k", Values{"True", "0"}), "[true,false]"},
      {{"array_of_numbers"}, std::make_shared<AddArrayNumberAction>("k", Values{"1", "-2", "3.9"}), "[1,-2,3]"},
  };
}

/// The additions above and those that would report or throw if they looked at their values.
std::vector<AdditionRow> nullTargetRows() {
  using Values = std::vector<std::string>;
  std::vector<AdditionRow> rows = additionRows();
  rows.push_back({{"missing_file"}, std::make_shared<AddFileAtAction>("k", "no/such/file"), ""});
  rows.push_back({{"rejected_boolean"}, std::make_shared<AddBooleanAction>("k", "yes"), ""});
  rows.push_back({{"rejected_booleans"}, std::make_shared<AddArrayBooleanAction>("k", Values{"yes"}), ""});
  rows.push_back({{"no_number"}, std::make_shared<AddNumberAction>("k", "x"), ""});
  rows.push_back({{"no_numbers"}, std::make_shared<AddArrayNumberAction>("k", Values{"x"}), ""});
  return rows;
}

class Addition : public testing::TestWithParam<AdditionRow> {};

TEST_P(Addition, ReplacesWhateverTheTargetHeld) {
  for (const char* json : {R"({"a":[1]})", "[1,2]", R"("s")", "1", "true", "false", "null"}) {
    SCOPED_TRACE(json);
    Document document = parsed(json);
    EXPECT_TRUE(apply(*GetParam().action, &document, document));
    EXPECT_EQ(jsonOf(document), GetParam().made);
  }
}

TEST_P(Addition, LeavesItsValueInTheDocumentWhenItIsGone) {
  Document document = parsed(R"({"k":null})");
  {
    const std::vector<AdditionRow> rows = additionRows();
    for (const AdditionRow& row : rows) {
      if (row.name == GetParam().name) {
        EXPECT_TRUE(applyAtPath(*row.action, document));
      }
    }
  }
  EXPECT_EQ(jsonOf(document), R"({"k":)" + GetParam().made + "}");
}

INSTANTIATE_TEST_SUITE_P(EditAction, Addition, testing::ValuesIn(additionRows()), rowName<AdditionRow>);

class AdditionWithoutTarget : public testing::TestWithParam<AdditionRow> {};

TEST_P(AdditionWithoutTarget, FailsInSilence) {
  Document document;
  bool applied = true;
  const Printed printed = capture([&] { applied = apply(*GetParam().action, nullptr, document); });
  EXPECT_FALSE(applied);
  EXPECT_EQ(printed.output + printed.errors, "");
}

INSTANTIATE_TEST_SUITE_P(EditAction, AdditionWithoutTarget, testing::ValuesIn(nullTargetRows()), rowName<AdditionRow>);

TEST(AddBooleanAction, LeavesTheTargetAloneForAnyOtherWord) {
  Document document = parsed(R"({"a":1})");
  bool applied = true;
  const Printed printed = capture([&] { applied = apply(AddBooleanAction("k", "True1"), &document, document); });
  EXPECT_FALSE(applied);
  EXPECT_EQ(jsonOf(document), R"({"a":1})");
  EXPECT_EQ(printed.errors, "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, true1 rejected.\n");
  EXPECT_EQ(printed.output, "");
}

TEST(AddFileAtAction, MakesAnObjectEvenWithoutItsFile) {
  for (const auto& [before, after] : std::vector<std::pair<std::string, std::string>>{
           {"null", "{}"}, {"[1]", "{}"}, {R"("s")", "{}"}, {R"({"a":1})", R"({"a":1})"}}) {
    SCOPED_TRACE(before);
    Document document = parsed(before);
    bool applied = false;
    const Printed printed =
        capture([&] { applied = apply(AddFileAtAction("k", "no/such/file"), &document, document); });
    EXPECT_TRUE(applied);
    EXPECT_EQ(jsonOf(document), after);
    EXPECT_EQ(printed.errors, "Could not open document: no/such/file\n");
  }
}

// How an addition is carried out.

/// Counts its calls and remembers the last one.
class ObservedAction : public EditAction {
 public:
  ObservedAction(std::string_view keyPath, bool result) : EditAction(keyPath), result_(result) {}

  bool apply(Value* target, EditedDocument& document) const override {
    ++calls;
    lastTarget = target;
    lastAllocator = &document.allocator;
    targetWasNull = target->IsNull();
    target->SetString("applied");
    return result_;
  }

  mutable int calls = 0;
  mutable Value* lastTarget = nullptr;
  mutable Allocator* lastAllocator = nullptr;
  mutable bool targetWasNull = false;

 private:
  bool result_;
};

TEST(ApplyAtPath, AppliesOnceToTheValueInTheDocument) {
  for (const bool result : {true, false}) {
    SCOPED_TRACE(result);
    Document document = parsed(R"({"a":{"b":1}})");
    const ObservedAction action("a.b", result);
    EXPECT_EQ(applyAtPath(action, document), result);
    EXPECT_EQ(action.calls, 1);
    EXPECT_EQ(action.lastTarget, &document["a"]["b"]);
    EXPECT_EQ(action.lastAllocator, &document.GetAllocator());
  }
}

TEST(ApplyAtPath, AppliesToTheRootWithoutSteps) {
  Document document = parsed(R"({"a":1})");
  const ObservedAction action("", true);
  EXPECT_TRUE(applyAtPath(action, document));
  EXPECT_EQ(action.lastTarget, &document);
}

TEST(ApplyAtPath, AppliesInsideASelectedElement) {
  Document document = parsed(R"({"l":[{"id":1,"v":0},{"id":2,"v":0}]})");
  EXPECT_TRUE(applyAtPath(ObservedAction("l.id=2.v", true), document));
  EXPECT_EQ(jsonOf(document), R"({"l":[{"id":1,"v":0},{"id":2,"v":"applied"}]})");
}

TEST(ApplyAtPath, DoesNotCallTheActionWithoutATarget) {
  for (const char* path : {"b", "a.c", "a.b.c", ".", "l.id=2"}) {
    SCOPED_TRACE(path);
    Document document = parsed(R"({"a":{"b":1},"l":[{"id":1}]})");
    const ObservedAction action(path, true);
    capture([&] { EXPECT_FALSE(applyAtPath(action, document)); });
    EXPECT_EQ(action.calls, 0);
    EXPECT_EQ(jsonOf(document), R"({"a":{"b":1},"l":[{"id":1}]})");
  }
}

TEST(BuildPathChain, AppliesOnceToAFreshNullWhateverTheResult) {
  for (const bool result : {true, false}) {
    SCOPED_TRACE(result);
    Document document;
    const ObservedAction action("a.id=1.", result);
    const Value chain = chainOf(action, document);
    EXPECT_EQ(action.calls, 1);
    EXPECT_TRUE(action.targetWasNull);
    EXPECT_EQ(action.lastAllocator, &document.GetAllocator());
    EXPECT_EQ(jsonOf(chain), R"({"a":{"id=1":{"":"applied"}}})");
  }
}

TEST(BuildPathChain, KeepsNullForARejectedBoolean) {
  Document document;
  Value chain;
  const Printed printed = capture([&] { chain = chainOf(AddBooleanAction("a.b", "yes"), document); });
  EXPECT_EQ(jsonOf(chain), R"({"a":{"b":null}})");
  EXPECT_EQ(printed.errors, "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, yes rejected.\n");
}

TEST(BuildPathChain, IsTheBareValueWithoutSteps) {
  Document document;
  EXPECT_EQ(jsonOf(chainOf(AddStringAction("", "v"), document)), R"("v")");
}

}  // namespace
}  // namespace kovalt::test
