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

/// Moves the value of `member` into `existing`, the one of the same name. But two objects that meet are left alone, and
/// `existing` is returned; otherwise nullptr.
Value* mergeMember(Value& existing, Value::Member& member, Allocator& allocator) {
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

/// As mergeMember for the first member of that name, if there is one; else appends the member. Kept out of the
/// recursive function, whose stack frame decides how deep a merge can go.
[[gnu::noinline]] Value* mergeOrAppendMember(Value& target, Value::Member& member, FirstMatchIndex& names,
                                             Allocator& allocator) {
  const auto members = target.MemberBegin();
  const std::size_t position = names.find(textOf(member.name), target.MemberCount(), [&](std::size_t i) {
    return textOf(members[static_cast<std::ptrdiff_t>(i)].name);
  });
  if (position == target.MemberCount()) {
    target.AddMember(member.name, member.value, allocator);
    return nullptr;
  }
  return mergeMember(members[static_cast<std::ptrdiff_t>(position)].value, member, allocator);
}

}  // namespace

void mergeValue(Value& target, Value& source, Allocator& allocator) {
  FirstMatchIndex names;
  for (Value::Member& member : source.GetObject()) {
    if (Value* existing = mergeOrAppendMember(target, member, names, allocator)) {
      mergeValue(*existing, member.value, allocator);
    }
  }
}

void mergeValue(Value& target, Value& source, Allocator& allocator, MemberFinder& members) {
  Value* into = &target;
  Value* from = &source;
  while (from->MemberCount() == 1) {
    Value::Member& member = *from->MemberBegin();
    Value* existing = members.find(*into, textOf(member.name));
    if (existing == nullptr) {
      members.append(*into, member.name, member.value, allocator);
      return;
    }
    into = mergeMember(*existing, member, allocator);
    if (into == nullptr) {
      return;
    }
    from = &member.value;
  }
  mergeValue(*into, *from, allocator);
}

}  // namespace kovalt
