#include "actions/read/read_object_array_concat_action.h"

#include <algorithm>

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

ReadObjectArrayConcatAction::ReadObjectArrayConcatAction(std::string_view keyPath,
                                                         const std::vector<std::string>& fields,
                                                         std::string_view separators)
    : ReadAction(keyPath), separators_(separators) {
  for (const std::string& field : fields) {
    elementFields.push_back(std::make_unique<ReadAction>(field));
  }
}

bool ReadObjectArrayConcatAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const Value* target = resolveForRead(*this, value, lookups);
  if (target == nullptr || !target->IsArray()) {
    return false;
  }
  ConcatRecords records;
  for (const Value& element : target->GetArray()) {
    ++records[readRecord(element)];
  }
  text = joined(records);
  return true;
}

std::string ReadObjectArrayConcatAction::readRecord(const Value& element) const {
  // New lookups for each element, because an element is searched only once for each field.
  Lookups lookups;
  std::string record;
  for (std::size_t i = 0; i < elementFields.size(); ++i) {
    std::string field;
    elementFields[i]->execute(element, field, lookups);
    if (i > 0 && !separators_.empty()) {
      record += separators_[std::min(i, separators_.size()) - 1];
    }
    record += field;
  }
  return record;
}

}  // namespace kovalt
