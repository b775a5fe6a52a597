#pragma once

// The distinct records of a concatenation and how often each was seen.

#include <cstdint>
#include <string>
#include <vector>

#include "json/tuning/first_match_index.h"

namespace kovalt {

/// A record text and the number of elements that made it.
struct ConcatRecord {
  std::string text;
  std::int32_t count = 1;
};

/// Collects records, counting equal ones.
class ConcatRecords {
 public:
  /// Counts `text` up, or takes it in as a new record.
  void add(std::string text);

  /// All records in the order of their bytes, a space between two, each count above 1 after its text in parentheses.
  /// The collection is sorted by it, so nothing may be added afterwards.
  std::string joinSorted() &&;

 private:
  std::vector<ConcatRecord> records_;
  FirstMatchIndex index_;
};

}  // namespace kovalt
