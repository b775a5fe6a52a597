#pragma once

// The words that are offered to a shell.

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace kovalt {

/// Collects words, each once, in the order in which they come. No one reads thousands of them and no shell takes them
/// in without a pause, so a long list is cut; two of the words left out are kept then, so that what all the words begin
/// with, which the shell inserts, stays the same.
class CandidateList {
 public:
  /// The number of words from which on the list is cut.
  static constexpr std::size_t kLongest = 500;

  void add(const std::string& word);

  [[nodiscard]] bool isCut() const { return cut_; }

  /// The words, at most two more than the longest list.
  [[nodiscard]] std::vector<std::string> words() const;

 private:
  std::vector<std::string> words_;
  std::unordered_set<std::string> known_;
  bool cut_ = false;
  std::string least_;  ///< Of the words left out.
  std::string greatest_;
};

}  // namespace kovalt
