#include "actions/edit/merge_value.h"

#include <string>

#include "json/process_end.h"
#include "json/standard_streams.h"
#include "json/text_value.h"
#include "json/tuning/first_match_index.h"

namespace kovalt {
namespace {

[[noreturn]] void endForIncompatibleTypes(std::string_view name) {
  reportLine("Incompatible types for key " + std::string(name));
  endWithFailure();
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
  const std::size_t position = names.find(textOf(member.name), target.MemberCount(), [&](std::size_t i) {
    return textOf(members[static_cast<std::ptrdiff_t>(i)].name);
  });
  if (position == target.MemberCount()) {
    target.AddMember(member.name, member.value, allocator);
    return nullptr;
  }
  Value& existing = members[static_cast<std::ptrdiff_t>(position)].value;
  if (existing.GetType() != member.value.GetType()) {
    endForIncompatibleTypes(textOf(member.name));
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
