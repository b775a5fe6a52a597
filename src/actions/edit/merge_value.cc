#include "actions/edit/merge_value.h"

#include <cstdlib>
#include <string>

#include "json/find_member.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

std::string_view nameOf(const Value::Member& member) { return {member.name.GetString(), member.name.GetStringLength()}; }

[[noreturn]] void endForIncompatibleTypes(std::string_view name) {
  reportLine("Incompatible types for key " + std::string(name));
  std::exit(EXIT_FAILURE);
}

void appendElements(Value& target, Value& source, Allocator& allocator) {
  for (Value& element : source.GetArray()) {
    target.PushBack(element, allocator);
  }
}

}  // namespace

void mergeValue(Value& target, Value& source, Allocator& allocator) {
  for (Value::Member& member : source.GetObject()) {
    Value* existing = findMember(target, nameOf(member));
    if (existing == nullptr) {
      target.AddMember(member.name, member.value, allocator);
    } else if (existing->GetType() != member.value.GetType()) {
      endForIncompatibleTypes(nameOf(member));
    } else if (existing->IsArray()) {
      appendElements(*existing, member.value, allocator);
    } else if (existing->IsObject()) {
      mergeValue(*existing, member.value, allocator);
    } else {
      *existing = member.value;
    }
  }
}

}  // namespace kovalt
