#pragma once

// When an index is worth its cost.

#include <cstddef>

namespace kovalt {

/// What the lookups of one index may spend on it.
///
/// A lookup earns about what a scan would cost: one comparison for each member or element before the one that ends the
/// search, or for all of them if none does, and one for each value inside an element that it compared. Each entry that
/// is added to the index costs as much as `kEntryCost` comparisons. An element counts as one entry, and as one more for
/// each item if the member that selects it is an array. What is not in the index is scanned. So lookups never cost more
/// than twice what scans alone would cost, whatever a file contains and however often it changes.
class IndexBudget {
 public:
  /// About how many comparisons take as long as adding one entry to an index. Objects and arrays with no more members
  /// or elements than that are always scanned.
  static constexpr std::size_t kEntryCost = 32;

  /// Earns what a scan of that many comparisons costs.
  void earn(std::size_t comparisons) { earned_ += comparisons; }

  /// Pays for adding `entries` entries. Returns false, having paid nothing, if too little was earned.
  bool pay(std::size_t entries) {
    const std::size_t cost = entries * kEntryCost;
    if (earned_ < cost) {
      return false;
    }
    earned_ -= cost;
    return true;
  }

 private:
  std::size_t earned_ = 0;
};

}  // namespace kovalt
