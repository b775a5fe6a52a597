#include "actions/read/concat_records.h"

#include <algorithm>
#include <utility>

namespace kovalt {

void ConcatRecords::add(std::string text) {
  const auto textAt = [this](std::size_t i) -> std::string_view { return records_[i].text; };
  const std::size_t position = index_.find(text, records_.size(), textAt);
  if (position < records_.size()) {
    ++records_[position].count;
  } else {
    records_.push_back({std::move(text)});
  }
}

std::string ConcatRecords::joinSorted() && {
  std::sort(records_.begin(), records_.end(),
            [](const ConcatRecord& left, const ConcatRecord& right) { return left.text < right.text; });
  std::string joined;
  for (const ConcatRecord& record : records_) {
    if (&record != &records_.front()) {
      joined += ' ';
    }
    joined += record.text;
    if (record.count > 1) {
      joined += '(' + std::to_string(record.count) + ')';
    }
  }
  return joined;
}

}  // namespace kovalt
