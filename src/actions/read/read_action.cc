#include "actions/read/read_action.h"

#include "json/write/write_value.h"

namespace kovalt {

bool ReadAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const Value* target = resolveForRead(*this, value, lookups);
  if (target == nullptr) {
    return false;
  }
  text = valueToText(*target, false);
  if (text.front() == '"') {
    text.pop_back();
    text.erase(0, 1);
  }
  return true;
}

void ReadAction::addTo(Projection& projection, Projection::Place from) const {
  const Projection::Place end = projection.addWalk(*this, from);
  if (elementFields.empty()) {
    projection.addWhole(end);
    return;
  }
  const Projection::Place element = projection.addElements(end);
  for (const auto& field : elementFields) {
    field->addTo(projection, element);
  }
}

}  // namespace kovalt
