#include "completion/candidate_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace kovalt::test {
namespace {

TEST(CandidateList, KeepsEachWordOnceInOrder) {
  CandidateList list;
  for (const char* word : {"b", "a", "b", "c", "a"}) {
    list.add(word);
  }
  EXPECT_EQ(list.words(), (std::vector<std::string>{"b", "a", "c"}));
  EXPECT_FALSE(list.isCut());
}

TEST(CandidateList, IsNotCutUpToTheLongest) {
  CandidateList list;
  for (std::size_t i = 0; i < CandidateList::kLongest; ++i) {
    list.add(std::to_string(i));
  }
  list.add("0");
  EXPECT_EQ(list.words().size(), CandidateList::kLongest);
  EXPECT_FALSE(list.isCut());
}

TEST(CandidateList, IsCutWithoutChangingTheCommonPrefix) {
  CandidateList list;
  for (std::size_t i = 0; i < CandidateList::kLongest; ++i) {
    list.add("same." + std::to_string(i));
  }
  for (const char* word : {"same", "sama", "samu"}) {
    list.add(word);
  }
  EXPECT_TRUE(list.isCut());
  const std::vector<std::string> words = list.words();
  EXPECT_EQ(words.size(), CandidateList::kLongest + 2);
  EXPECT_EQ(std::count(words.begin(), words.end(), "sama"), 1);
  EXPECT_EQ(std::count(words.begin(), words.end(), "samu"), 1);
}

TEST(CandidateList, KeepsTheOnlyDroppedWordOnce) {
  CandidateList list;
  for (std::size_t i = 0; i <= CandidateList::kLongest; ++i) {
    list.add(std::to_string(i));
  }
  EXPECT_EQ(list.words().size(), CandidateList::kLongest + 1);
}

}  // namespace
}  // namespace kovalt::test
