#pragma once

// The candidates that a shell shows.

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace kovalt {

/// Collects distinct words in the order in which they were added. A shell is slow with thousands of candidates and
/// nobody reads them, so a longer list is cut. The least and the greatest of the dropped words are kept, so that the
/// cut list has the same common prefix, which the shell inserts.
class CandidateList {
 public:
  /// The longest list that is not cut.
  static constexpr std::size_t kLongest = 500;

  void add(const std::string& word);

  [[nodiscard]] bool isCut() const { return cut_; }

  /// The words: at most `kLongest`, and the least and the greatest of the dropped ones.
  [[nodiscard]] std::vector<std::string> words() const;

 private:
  std::vector<std::string> words_;
  std::set<std::string> known_;  ///< The same words. Not hashed, because a hostile file could make all hashes equal.
  bool cut_ = false;
  std::string least_;  ///< Of the dropped words.
  std::string greatest_;
};

}  // namespace kovalt
