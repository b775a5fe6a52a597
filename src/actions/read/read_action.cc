#include "actions/read/read_action.h"

#include "json/value_to_text.h"

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

void ReadAction::keepValue(Projection& projection, Projection::Place from) const {
  projection.addWhole(projection.addWalk(*this, from));
}

}  // namespace kovalt
