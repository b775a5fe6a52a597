#include "json/member_finder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <unordered_map>
#include <utility>

#include "json/document.h"
#include "support/json_text.h"

namespace kovalt::test {
namespace {

/// The members of one object, and one finder for all lookups in it.
class FoundMembers : public testing::TestWithParam<int> {
 protected:
  /// One of `GetParam()` names: the fewer there are, the more members have equal names.
  std::string anyName() { return "n" + std::to_string(number(GetParam())); }
  int number(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  void append() {
    Allocator& allocator = document.GetAllocator();
    Value value(static_cast<std::uint64_t>(object().MemberCount()));
    Value name = copyText(anyName(), allocator);
    finder.append(object(), name, value, allocator);
  }

  /// Compares a lookup with a linear search, and sometimes removes a member.
  void findAndRemove(int removalsInTen) {
    const std::string name = anyName();
    ASSERT_EQ(finder.find(object(), name), findMember(object(), name));
    if (number(10) >= removalsInTen) {
      return;
    }
    Document expected = parsed(jsonOf(object()));
    EXPECT_EQ(finder.remove(object(), name), expected.RemoveMember(referToText(name)));
    ASSERT_EQ(jsonOf(object()), jsonOf(expected));
  }

  Value& object() { return document["o"]; }

  Document document = parsed(R"({"o":{}})");
  MemberFinder finder;

 private:
  static std::string jsonOf(const Value& value) { return test::jsonOf(value); }

  std::mt19937 random_{7};
};

TEST_P(FoundMembers, EqualThoseOfALinearSearchWhileTheObjectGrowsAndShrinks) {
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 150; ++i) {
      append();
      findAndRemove(0);
    }
    for (int i = 0; i < 250; ++i) {
      findAndRemove(10);
    }
    for (int i = 0; i < 100; ++i) {
      append();
      findAndRemove(3);
    }
  }
}

TEST_P(FoundMembers, EqualThoseOfALinearSearchAfterTheObjectIsReplaced) {
  for (int round = 0; round < 5; ++round) {
    for (int i = 0; i < 100; ++i) {
      append();
      findAndRemove(1);
    }
    object().SetObject();
    findAndRemove(1);
  }
}

INSTANTIATE_TEST_SUITE_P(MemberFinder, FoundMembers, testing::Values(1, 2, 10, 100, 1000));

/// A hash with a known key.
TextHash knownHash() { return {0, 0}; }

/// Two names whose hashes agree in the 32 bits that an index stores.
std::pair<std::string, std::string> equalHashes() {
  std::unordered_map<std::uint32_t, std::string> seen;
  for (int i = 0;; ++i) {
    const std::string text = std::to_string(i);
    const auto hash = static_cast<std::uint32_t>(knownHash()(text));
    const auto [other, isNew] = seen.emplace(hash, text);
    if (!isNew) {
      return {other->second, text};
    }
  }
}

TEST(MemberFinder, DistinguishesNamesWithEqualHashes) {
  const auto [one, other] = equalHashes();
  std::string json = R"({")" + one + R"(":1)";
  for (int i = 0; i < 50; ++i) {
    json += R"(,"member )" + std::to_string(i) + R"(":0)";
  }
  Document document = parsed(json + "}");
  MemberFinder finder(knownHash());
  for (int i = 0; i < 50; ++i) {
    ASSERT_EQ(finder.find(document, other), nullptr);
    ASSERT_EQ(finder.find(document, one), &document.MemberBegin()->value);
  }
  Value name = copyText(other, document.GetAllocator());
  finder.append(document, name, Value(2).Move(), document.GetAllocator());
  // Often enough for the index to contain the appended member.
  for (int i = 0; i < 50; ++i) {
    ASSERT_EQ(finder.find(document, other), &(document.MemberEnd() - 1)->value);
  }
  EXPECT_EQ(finder.find(document, one), &document.MemberBegin()->value);
}

TEST(MemberFinder, FindsNothingInValuesThatAreNotObjects) {
  MemberFinder finder;
  for (const char* json : {"null", "1", "[1]", "{}", R"("a")"}) {
    Document document = parsed(json);
    EXPECT_EQ(finder.find(document, "a"), nullptr) << json;
    EXPECT_EQ(findMember(document, "a"), nullptr) << json;
  }
}

TEST(FindMember, ReturnsTheFirstMemberInTheDocument) {
  const Document document = parsed(R"({"b":0,"a":1,"a":2})");
  EXPECT_EQ(findMember(document, "a"), &document.MemberBegin()[1].value);
}

TEST(FindMember, ComparesEveryByteOfTheNameAndNoByteAfterIt) {
  const Document document = parsed(R"({"a\u0000c":1,"a\u0000b":2,"a":3,"":4})");
  const std::string_view text("a\0b", 3);
  for (const auto& [length, expected] : {std::pair(3U, 2), std::pair(1U, 3), std::pair(0U, 4)}) {
    const Value* found = findMember(document, text.substr(0, length));
    ASSERT_NE(found, nullptr) << length;
    EXPECT_EQ(found->GetInt(), expected);
  }
  EXPECT_EQ(findMember(document, text.substr(0, 2)), nullptr);
}

}  // namespace
}  // namespace kovalt::test
