#include "json/ref_value.h"

#include "json/value_to_text.h"

namespace kovalt {

bool canSelect(const Value& member) { return !member.IsNull() && !member.IsObject(); }

bool itemCanSelect(const Value& item) { return item.IsNumber() || item.IsString(); }

std::string refValueOf(const Value& scalar) {
  return scalar.IsString() ? std::string(scalar.GetString()) : valueToText(scalar, false);
}

}  // namespace kovalt
