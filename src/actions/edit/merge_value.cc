#include "actions/edit/merge_value.h"

#include <string>
#include <vector>

#include "json/process_exit.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

/// Merges `member` into `target` and returns nullptr. If `member` and the existing member are both objects, changes
/// nothing and returns the existing one, so that the caller can descend.
Value* mergeMember(Value& target, Value::Member& member, EditedDocument& document) {
  MemberFinder& members = document.lookups.members;
  Value* existing = members.find(target, textOf(member.name));
  if (existing == nullptr) {
    members.append(target, member.name, member.value, document.allocator);
    return nullptr;
  }
  if (existing->GetType() != member.value.GetType()) {
    reportLine("Incompatible types for key " + std::string(textOf(member.name)));
    exitWithFailure();
  }
  if (existing->IsObject()) {
    return existing;
  }
  if (existing->IsArray()) {
    for (Value& element : member.value.GetArray()) {
      existing->PushBack(element, document.allocator);
    }
  } else {
    *existing = member.value;
  }
  return nullptr;
}

}  // namespace

void mergeValue(Value& target, Value& source, EditedDocument& document) {
  struct Remaining {
    Value* into;
    Value::MemberIterator next;
    Value::MemberIterator end;
  };
  // Kept on the heap, so that no depth of nesting exhausts the call stack.
  std::vector<Remaining> open = {{&target, source.GetObject().MemberBegin(), source.MemberEnd()}};
  while (!open.empty()) {
    Remaining& remaining = open.back();
    if (remaining.next == remaining.end) {
      open.pop_back();
      continue;
    }
    Value::Member& member = *remaining.next++;
    if (Value* existing = mergeMember(*remaining.into, member, document)) {
      open.push_back({existing, member.value.MemberBegin(), member.value.MemberEnd()});
    }
  }
}

}  // namespace kovalt
