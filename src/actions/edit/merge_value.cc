#include "actions/edit/merge_value.h"

#include <string>

#include "json/process_end.h"
#include "json/standard_streams.h"
#include "json/text_value.h"

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

/// Moves `member` into `target`. But the object that another one meets is returned, both left alone; otherwise nullptr.
/// Kept out of the recursive function, whose stack frame decides how deep a merge can go.
[[gnu::noinline]] Value* mergeMember(Value& target, Value::Member& member, Allocator& allocator,
                                     MemberFinder& members) {
  Value* existing = members.find(target, textOf(member.name));
  if (existing == nullptr) {
    members.append(target, member.name, member.value, allocator);
    return nullptr;
  }
  if (existing->GetType() != member.value.GetType()) {
    endForIncompatibleTypes(textOf(member.name));
  }
  if (existing->IsObject()) {
    return existing;
  }
  if (existing->IsArray()) {
    appendElements(*existing, member.value, allocator);
  } else {
    *existing = member.value;
  }
  return nullptr;
}

}  // namespace

void mergeValue(Value& target, Value& source, Allocator& allocator, MemberFinder& members) {
  Value* into = &target;
  auto next = source.GetObject().MemberBegin();
  for (auto end = source.MemberEnd(); next != end;) {
    Value::Member& member = *next++;
    Value* existing = mergeMember(*into, member, allocator, members);
    if (existing != nullptr && next == end) {
      // Nothing is left to come back to, so that the chain along a key path takes no stack.
      into = existing;
      next = member.value.MemberBegin();
      end = member.value.MemberEnd();
    } else if (existing != nullptr) {
      mergeValue(*existing, member.value, allocator, members);
    }
  }
}

}  // namespace kovalt
