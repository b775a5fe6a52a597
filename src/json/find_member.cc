#include "json/find_member.h"

namespace kovalt {

const Value* findMember(const Value& value, std::string_view name) {
  if (!value.IsObject()) {
    return nullptr;
  }
  const Value key(rapidjson::StringRef(name.data(), static_cast<rapidjson::SizeType>(name.size())));
  const auto member = value.FindMember(key);
  return member == value.MemberEnd() ? nullptr : &member->value;
}

Value* findMember(Value& value, std::string_view name) {
  return const_cast<Value*>(findMember(static_cast<const Value&>(value), name));
}

}  // namespace kovalt
