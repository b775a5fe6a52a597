#include "actions/read/read_object_array_concat_action.h"

#include <algorithm>

#include "actions/read/concat_records.h"

namespace kovalt {

ReadObjectArrayConcatAction::ReadObjectArrayConcatAction(std::string_view keyPath,
                                                         const std::vector<std::string>& fields,
                                                         std::string_view separators)
    : ReadAction(keyPath), separators_(separators) {
  for (const std::string& field : fields) {
    fields_.push_back(std::make_unique<ReadAction>(field));
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

void ReadObjectArrayConcatAction::keepFields(Projection& projection, Projection::Place from) const {
  const Projection::Place element = projection.addElements(projection.addWalk(*this, from));
  for (const auto& field : fields_) {
    field->keepValue(projection, element);
  }
}

std::string ReadObjectArrayConcatAction::readRecord(const Value& element) const {
  // Shared by the fields only: with many elements, each is asked seldom.
  Lookups lookups;
  std::string record;
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    std::string field;
    fields_[i]->execute(element, field, lookups);
    if (i > 0) {
      appendSeparator(record, i - 1);
    }
    record += field;
  }
  return record;
}

void ReadObjectArrayConcatAction::appendSeparator(std::string& record, std::size_t fieldIndex) const {
  if (!separators_.empty()) {
    record += separators_[std::min(fieldIndex, separators_.size() - 1)];
  }
}

}  // namespace kovalt
