#include "completion/complete_edit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/memory_file.h"

namespace kovalt::test {
namespace {

/// Returns the candidates for the last word of a line, or "files" for file names.
std::vector<std::string> candidates(const std::vector<std::string>& line) {
  const Completion completion = completeEdit(line, line.size() - 1);
  if (completion.isFile) {
    return {"files"};
  }
  std::vector<std::string> words;
  for (const std::string& candidate : completion.lines) {
    words.push_back(candidate.substr(0, candidate.find('\t')));
  }
  return words;
}

using Words = std::vector<std::string>;

TEST(EditCommand, IsRecognisedByNameAndByPath) {
  EXPECT_TRUE(isEditCommand("kovalt-edit"));
  EXPECT_TRUE(isEditCommand("/usr/bin/kovalt-edit"));
  EXPECT_FALSE(isEditCommand("Kovalt"));
  EXPECT_FALSE(isEditCommand("kovalt-edit/Kovalt"));
  EXPECT_FALSE(isEditCommand(""));
}

TEST(CompleteEdit, OffersItsOwnOptionsBeforeTheFile) {
  EXPECT_EQ(candidates({"kovalt-edit", "-"}), (Words{"--create", "--help"}));
  EXPECT_EQ(candidates({"kovalt-edit", "--create"}), Words{"--create"});
  EXPECT_EQ(candidates({"kovalt-edit", "--h"}), Words{"--help"});
  EXPECT_EQ(candidates({"kovalt-edit", "--file"}), Words{});
}

TEST(CompleteEdit, OffersFilesForTheFile) {
  EXPECT_EQ(candidates({"kovalt-edit", ""}), Words{"files"});
  EXPECT_EQ(candidates({"kovalt-edit", "c"}), Words{"files"});
  EXPECT_EQ(candidates({"kovalt-edit", "--create", ""}), Words{"files"});
  EXPECT_EQ(candidates({"kovalt-edit", "--create", "-"}), Words{"files"});
}

TEST(CompleteEdit, OffersTheOptionsOfKovaltAfterTheFile) {
  const MemoryFile file;
  file.write(R"({"network":{"port":1},"flag":true})");
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "-rm"}), (Words{"-rm", "-rmc"}));
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "--file"}), Words{});
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "--create"}), Words{});
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "-ab", "flag", ""}), (Words{"true", "false"}));
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "-af", ""}), Words{"files"});
  EXPECT_EQ(candidates({"kovalt-edit", file.path(), "--read", ""}), (Words{"network.", "flag"}));
  EXPECT_EQ(candidates({"kovalt-edit", "--create", file.path(), "--read", "network."}), Words{"network.port"});
}

TEST(CompleteEdit, CompletesTheWordAtTheCursor) {
  const MemoryFile file;
  file.write(R"({"network":{"port":1}})");
  EXPECT_EQ(completeEdit({"kovalt-edit", file.path(), "-r", "n", "-rm", "x"}, 3).lines, Words{"network."});
  EXPECT_EQ(completeEdit({"kovalt-edit", "--create", file.path(), "-r", "n", "-rm", "x"}, 4).lines, Words{"network."});
  EXPECT_TRUE(completeEdit({"kovalt-edit", "c", "-rm", "x"}, 1).isFile);
}

}  // namespace
}  // namespace kovalt::test
