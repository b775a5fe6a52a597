// Parts of additions that calls of the program do not reach: a null target, and the base class.

#include "actions/edit/edit_action.h"

#include <gtest/gtest.h>

#include <memory>

#include "actions/edit/add_file_at_action.h"
#include "actions/edit/additions.h"
#include "support/capture.h"
#include "support/json_text.h"

namespace kovalt::test {
namespace {

using Values = std::vector<std::string>;

TEST(EditAction, ChangesNothingInTheBaseClass) {
  Document document = parsed(R"({"a":[1]})");
  EditedDocument edited(document);
  EXPECT_TRUE(EditAction("a").apply(&document, edited));
  EXPECT_TRUE(EditAction("a").apply(nullptr, edited));
  EXPECT_EQ(jsonOf(document), R"({"a":[1]})");
}

TEST(EditAction, RejectsANullTargetSilently) {
  std::vector<std::unique_ptr<EditAction>> additions;
  // The first five would report or throw if they looked at their values.
  additions.push_back(std::make_unique<AddBooleanAction>("k", "yes"));
  additions.push_back(std::make_unique<AddNumberAction>("k", "x"));
  additions.push_back(std::make_unique<AddArrayNumberAction>("k", Values{"x"}));
  additions.push_back(std::make_unique<AddArrayBooleanAction>("k", Values{"yes"}));
  additions.push_back(std::make_unique<AddFileAtAction>("k", "no/such/file"));
  additions.push_back(std::make_unique<AddStringAction>("k", "v"));
  additions.push_back(std::make_unique<AddObjectAction>("k"));
  additions.push_back(std::make_unique<AddArrayAction>("k", Values{"v"}));
  for (const auto& addition : additions) {
    Document document;
    EditedDocument edited(document);
    const Printed printed = capture([&] { EXPECT_FALSE(addition->apply(nullptr, edited)); });
    EXPECT_EQ(printed.output + printed.errors, "");
  }
}

}  // namespace
}  // namespace kovalt::test
