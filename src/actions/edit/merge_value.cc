#include "actions/edit/merge_value.h"

#include <string>
#include <vector>

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
Value* mergeMember(Value& target, Value::Member& member, Allocator& allocator, MemberFinder& members) {
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
  struct Rest {
    Value* into;
    Value::MemberIterator next;
    Value::MemberIterator end;
  };
  // Kept on the heap instead of the call stack, so that no depth of nesting can end the process.
  std::vector<Rest> open = {{&target, source.GetObject().MemberBegin(), source.MemberEnd()}};
  while (!open.empty()) {
    Rest& rest = open.back();
    if (rest.next == rest.end) {
      open.pop_back();
      continue;
    }
    Value::Member& member = *rest.next++;
    if (Value* existing = mergeMember(*rest.into, member, allocator, members)) {
      open.push_back({existing, member.value.MemberBegin(), member.value.MemberEnd()});
    }
  }
}

}  // namespace kovalt
