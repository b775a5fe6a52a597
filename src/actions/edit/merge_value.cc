#include "actions/edit/merge_value.h"

#include <cstdlib>
#include <string>

#include "json/standard_streams.h"
#include "json/tuning/first_match_index.h"

namespace kovalt {
namespace {

std::string_view nameOf(const Value::Member& member) {
  return {member.name.GetString(), member.name.GetStringLength()};
}

[[noreturn]] void endForIncompatibleTypes(std::string_view name) {
  reportLine("Incompatible types for key " + std::string(name));
  std::exit(EXIT_FAILURE);
}

void appendElements(Value& target, Value& source, Allocator& allocator) {
  for (Value& element : source.GetArray()) {
    target.PushBack(element, allocator);
  }
}

/// Moves one member into `target`, but for the members of two objects that meet: then the object in `target` is
/// returned, otherwise nullptr. Kept out of the recursive function, whose stack frame decides how deep a merge can go.
[[gnu::noinline]] Value* mergeMember(Value& target, Value::Member& member, FirstMatchIndex& names,
                                     Allocator& allocator) {
  const auto members = target.MemberBegin();
  const std::size_t position = names.find(nameOf(member), target.MemberCount(), [&](std::size_t i) {
    return nameOf(members[static_cast<std::ptrdiff_t>(i)]);
  });
  if (position == target.MemberCount()) {
    target.AddMember(member.name, member.value, allocator);
    return nullptr;
  }
  Value& existing = members[static_cast<std::ptrdiff_t>(position)].value;
  if (existing.GetType() != member.value.GetType()) {
    endForIncompatibleTypes(nameOf(member));
  }
  if (existing.IsObject()) {
    return &existing;
  }
  if (existing.IsArray()) {
    appendElements(existing, member.value, allocator);
  } else {
    existing = member.value;
  }
  return nullptr;
}

}  // namespace

void mergeValue(Value& target, Value& source, Allocator& allocator) {
  FirstMatchIndex names;
  for (Value::Member& member : source.GetObject()) {
    if (Value* existing = mergeMember(target, member, names, allocator)) {
      mergeValue(*existing, member.value, allocator);
    }
  }
}

}  // namespace kovalt
