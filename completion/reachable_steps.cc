#include "completion/reachable_steps.h"

#include <algorithm>
#include <utility>

#include "completion/shown_text.h"
#include "completion/starts_with.h"
#include "json/document.h"
#include "json/path/key_path.h"
#include "json/path/selecting_values.h"

namespace kovalt {
namespace {

bool canBePartOfStep(std::string_view text) { return text.find('.') == std::string_view::npos && canBeShown(text); }

bool isMemberStep(std::string_view name, KeyPathUse use) {
  const bool readAsSelection = use.selects && asSelectionStep(name);
  return !name.empty() && !readAsSelection && canBePartOfStep(name);
}

bool isRefKey(std::string_view name) { return !asSelectionStep(name) && canBePartOfStep(name); }

/// Whether `key` can be the key of a selection step that begins with `typed`.
bool keyFits(std::string_view key, std::string_view typed) {
  const std::optional<SelectionStep> selection = asSelectionStep(typed);
  return selection ? key == selection->refKey : startsWith(key, typed);
}

/// Returns the first member of each name.
std::vector<const Value::Member*> firstMembers(const Value& object) {
  std::set<std::string_view> names;
  std::vector<const Value::Member*> first;
  for (const Value::Member& member : object.GetObject()) {
    if (names.insert(textOf(member.name)).second) {
      first.push_back(&member);
    }
  }
  return first;
}

/// Adds the selections by `member`, whose value can select.
void addSelections(const Value::Member& member, std::vector<Selection>& selections) {
  const auto add = [&](const Value& scalar) {
    std::string refValue = refValueOf(scalar);
    if (canBePartOfStep(refValue)) {
      selections.push_back({textOf(member.name), std::move(refValue)});
    }
  };
  if (!member.value.IsArray()) {
    add(member.value);
    return;
  }
  for (const Value& item : member.value.GetArray()) {
    if (itemCanSelect(item)) {
      add(item);
    }
  }
}

bool hasMemberStep(const Value& object, KeyPathUse use) {
  return std::any_of(object.MemberBegin(), object.MemberEnd(),
                     [use](const Value::Member& member) { return isMemberStep(textOf(member.name), use); });
}

bool hasSelection(const Value& array) {
  SelectionReader reader(array, "");
  auto selections = reader.nextObject();
  while (selections && selections->empty()) {
    selections = reader.nextObject();
  }
  return selections.has_value();
}

}  // namespace

std::vector<const Value::Member*> reachableMembers(const Value& object, KeyPathUse use) {
  std::vector<const Value::Member*> members = firstMembers(object);
  members.erase(std::remove_if(members.begin(), members.end(),
                               [use](const Value::Member* member) { return !isMemberStep(textOf(member->name), use); }),
                members.end());
  return members;
}

SelectionReader::SelectionReader(const Value& array, std::string_view typed)
    : next_(array.Begin()), end_(array.End()), typed_(typed) {}

std::optional<std::vector<Selection>> SelectionReader::nextObject() {
  if (next_ == end_ || !next_->IsObject()) {
    return std::nullopt;
  }
  std::vector<Selection> selections;
  for (const Value::Member* member : firstMembers(*next_++)) {
    const std::string_view refKey = textOf(member->name);
    if (!isRefKey(refKey) || !keyFits(refKey, typed_)) {
      continue;
    }
    if (!canSelect(member->value)) {
      stoppedKeys_.insert(refKey);
    } else if (stoppedKeys_.count(refKey) == 0) {
      addSelections(*member, selections);
    }
  }
  return selections;
}

bool hasNextStep(const Value& value, KeyPathUse use) {
  return value.IsObject() ? hasMemberStep(value, use) : use.selects && value.IsArray() && hasSelection(value);
}

}  // namespace kovalt
