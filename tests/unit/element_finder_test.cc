// Selections have the same result with and without an index.

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

#include "json/path/find_object_by_ref.h"
#include "json/path/resolve_key_path.h"
#include "support/capture.h"
#include "support/json_text.h"

namespace kovalt::test {
namespace {

/// Random elements of an array. Their values repeat often, and `odd` in a hundred stop a search.
class Elements {
 public:
  explicit Elements(int odd) : odd_(odd) {}

  std::string element() {
    if (number(100) < odd_) {
      return anyOf({"5", "[]", R"({"id":null})", R"({"id":{"id":1}})"});
    }
    return number(10) == 0 ? R"({"no":1})" : R"({"id":)" + selecting() + R"(,"v":0,"id":1})";
  }

  std::string selecting() {
    switch (number(6)) {
      case 0:
        return std::to_string(number(60));
      case 1:
        return std::to_string(number(60)) + anyOf({".0", ".5", "e30", "e-7"});
      case 2:
        return anyOf({"true", "false", "-0.0", "18446744073709551615", "-9223372036854775808", "4e-320"});
      case 3:
        return "[" + std::to_string(number(60)) + anyOf({",true", R"(,"a")", ",null", ""}) + "," + selecting() + "]";
      case 4:
        return R"("n)" + std::to_string(number(60)) + anyOf({"", R"(\u0000x)"}) + '"';
      default:
        return '"' + std::to_string(number(60)) + '"';
    }
  }

  std::string refValue() {
    std::string value = selecting();
    if (value.find_first_of("[\"\\") != std::string::npos) {
      value = anyOf({"n", ""}) + std::to_string(number(70));
    }
    return value;
  }

  int number(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

 private:
  std::string anyOf(std::initializer_list<const char*> texts) {
    return texts.begin()[static_cast<std::size_t>(number(static_cast<int>(texts.size())))];
  }

  int odd_;
  std::mt19937 random_{3};
};

std::string arrayOf(int size, Elements& elements) {
  std::string json = "[";
  for (int i = 0; i < size; ++i) {
    json += (i == 0 ? "" : ",") + elements.element();
  }
  return json + "]";
}

/// The parameter is how many elements in a hundred stop a search.
class Selections : public testing::TestWithParam<int> {};

TEST_P(Selections, FindAndReportWhatASearchWithoutAnIndexDoes) {
  for (const int size : {1, 32, 33, 200}) {
    Elements elements(GetParam());
    Document document = parsed(arrayOf(size, elements));
    ElementFinder finder;
    for (int i = 0; i < 100; ++i) {
      const std::string refKey = i % 10 == 0 ? "no" : "id";
      const std::string refValue = elements.refValue();
      SCOPED_TRACE(refValue);
      const Value* found = nullptr;
      const Value* expected = nullptr;
      const Printed printed = capture([&] { found = finder.find(&document, refKey, refValue); });
      const Printed alone = capture([&] { expected = findObjectByRef(&document, refKey, refValue); });
      ASSERT_EQ(found, expected);
      ASSERT_EQ(printed.errors, alone.errors);
      if (i % 20 == 0) {
        document.PushBack(parsedInto(elements.element(), document.GetAllocator()), document.GetAllocator());
      }
    }
  }
}

TEST_P(Selections, SeeChangedElements) {
  Elements elements(GetParam());
  Document document = parsed(R"({"a":)" + arrayOf(150, elements) + "}");
  Lookups lookups;
  for (int i = 0; i < 300; ++i) {
    const std::string selection = "a.id=" + elements.refValue();
    const char* const ends[] = {"", ".v", ".id", ".id.id=1", ".no"};
    const KeyPath path(selection + ends[elements.number(elements.number(10) == 0 ? 5 : 2)]);
    SCOPED_TRACE(path.text());
    Lookups fresh;
    Value* found = nullptr;
    Value* expected = nullptr;
    const Printed printed = capture([&] { found = resolveExisting(path, document, lookups); });
    const Printed alone = capture([&] { expected = resolveExisting(path, document, fresh); });
    ASSERT_EQ(found, expected);
    ASSERT_EQ(printed.errors, alone.errors);
    if (found != nullptr) {
      *found =
          parsedInto(path.steps().size() == 2 ? elements.element() : elements.selecting(), document.GetAllocator());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(ElementFinder, Selections, testing::Values(0, 1, 10));

TEST(FindObjectByRef, ReportsANullArrayAsNotFound) {
  const Value* found = nullptr;
  const Printed printed = capture([&] { found = findObjectByRef(nullptr, "id", "a=b"); });
  EXPECT_EQ(found, nullptr);
  EXPECT_EQ(printed.errors, "Kovalt path not found with refKey=refValue \"id=a=b\"\n");
  EXPECT_EQ(printed.output, "");
}

}  // namespace
}  // namespace kovalt::test
