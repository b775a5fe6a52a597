#include "json/find_member.h"

#include "json/text_value.h"

namespace kovalt {

const Value* findMember(const Value& value, std::string_view name) {
  if (!value.IsObject()) {
    return nullptr;
  }
  const auto member = value.FindMember(referToText(name));
  return member == value.MemberEnd() ? nullptr : &member->value;
}

Value* findMember(Value& value, std::string_view name) {
  return const_cast<Value*>(findMember(static_cast<const Value&>(value), name));
}

}  // namespace kovalt
