#include "json/tuning/first_match_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace kovalt::test {
namespace {

using Texts = std::vector<std::string>;

std::size_t findIn(FirstMatchIndex& index, const Texts& texts, const std::string& text) {
  return index.find(text, texts.size(), [&](std::size_t i) { return std::string_view{texts[i]}; });
}

std::size_t firstEqual(const Texts& texts, const std::string& text) {
  return static_cast<std::size_t>(std::find(texts.begin(), texts.end(), text) - texts.begin());
}

/// `size` texts of which each stands in the sequence `repetitions` times, not next to each other.
Texts makeTexts(std::size_t size, std::size_t repetitions) {
  Texts texts;
  const std::size_t distinct = (size + repetitions - 1) / repetitions;
  for (std::size_t i = 0; i < size; ++i) {
    texts.push_back("text" + std::to_string(i % distinct));
  }
  return texts;
}

TEST(FirstMatchIndex, FindsNothingInNothing) {
  FirstMatchIndex index;
  EXPECT_EQ(findIn(index, {}, ""), 0U);
  EXPECT_EQ(findIn(index, {}, "a"), 0U);
}

TEST(FirstMatchIndex, FindsTheFirstOfEqualTextsInAnyNumberOfThem) {
  for (const std::size_t size : {1U, 2U, 31U, 32U, 33U, 63U, 64U, 65U, 127U, 128U, 129U, 1000U}) {
    for (const std::size_t repetitions : {1U, 2U, 7U, 1000U}) {
      SCOPED_TRACE(testing::Message() << size << " texts, each " << repetitions << " times");
      const Texts texts = makeTexts(size, repetitions);
      FirstMatchIndex index;
      for (const std::string& text : texts) {
        ASSERT_EQ(findIn(index, texts, text), firstEqual(texts, text)) << text;
        ASSERT_EQ(findIn(index, texts, text + "x"), size);
      }
    }
  }
}

TEST(FirstMatchIndex, FollowsASequenceThatGrows) {
  const Texts all = makeTexts(2000, 2);
  Texts texts;
  FirstMatchIndex index;
  for (const std::string& text : all) {
    ASSERT_EQ(findIn(index, texts, text), firstEqual(texts, text)) << text << " in " << texts.size();
    texts.push_back(text);
    ASSERT_EQ(findIn(index, texts, text), firstEqual(texts, text)) << text << " in " << texts.size();
  }
}

TEST(FirstMatchIndex, ComparesAllBytes) {
  Texts texts = {"", "a", std::string("a\0", 2), std::string("a\0b", 3), std::string("\0", 1), "\x80", "\xFF", "A"};
  const Texts odd = texts;
  for (int i = 0; i < 100; ++i) {
    texts.insert(texts.begin(), std::to_string(i));
  }
  FirstMatchIndex index;
  for (int round = 0; round < 10; ++round) {
    for (const std::string& text : odd) {
      EXPECT_EQ(findIn(index, texts, text), firstEqual(texts, text)) << text;
    }
    EXPECT_EQ(findIn(index, texts, std::string("a\0c", 3)), texts.size());
  }
}

/// Two texts whose hashes are equal in the 32 bits that the table keeps.
std::pair<std::string, std::string> equalHashes() {
  std::unordered_map<std::uint32_t, std::string> seen;
  for (int i = 0;; ++i) {
    const std::string text = std::to_string(i);
    const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>()(text));
    const auto [other, isNew] = seen.emplace(hash, text);
    if (!isNew) {
      return {other->second, text};
    }
  }
}

TEST(FirstMatchIndex, TellsTextsWithEqualHashesApart) {
  const auto [one, other] = equalHashes();
  Texts texts = makeTexts(100, 1);
  texts.push_back(one);
  FirstMatchIndex index;
  for (int round = 0; round < 20; ++round) {
    ASSERT_EQ(findIn(index, texts, other), texts.size());
    ASSERT_EQ(findIn(index, texts, one), 100U);
  }
  texts.push_back(other);
  EXPECT_EQ(findIn(index, texts, one), 100U);
  EXPECT_EQ(findIn(index, texts, other), 101U);
}

}  // namespace
}  // namespace kovalt::test
