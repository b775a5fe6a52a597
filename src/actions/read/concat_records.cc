#include "actions/read/concat_records.h"

namespace kovalt {

std::string joined(const ConcatRecords& records) {
  std::string text;
  for (auto record = records.begin(); record != records.end(); ++record) {
    text += (record == records.begin() ? "" : " ") + record->first;
    if (record->second > 1) {
      text += '(' + std::to_string(record->second) + ')';
    }
  }
  return text;
}

}  // namespace kovalt
