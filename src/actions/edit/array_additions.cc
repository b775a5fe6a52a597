#include "actions/edit/array_additions.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "actions/edit/boolean_word.h"

namespace kovalt {
namespace {

/// Makes `target` an empty array with room for `size` elements.
void startArray(Value& target, std::size_t size, Allocator& allocator) {
  target.SetArray();
  target.Reserve(static_cast<rapidjson::SizeType>(size), allocator);
}

}  // namespace

AddArrayAction::AddArrayAction(std::string_view keyPath, std::vector<std::string> values)
    : EditAction(keyPath), values_(std::move(values)) {}

bool AddArrayAction::apply(Value* target, Allocator& allocator, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  startArray(*target, values_.size(), allocator);
  for (const std::string& value : values_) {
    target->PushBack(Value(value.c_str(), allocator), allocator);
  }
  return true;
}

AddArrayNumberAction::AddArrayNumberAction(std::string_view keyPath, std::vector<std::string> values)
    : EditAction(keyPath), values_(std::move(values)) {}

bool AddArrayNumberAction::apply(Value* target, Allocator& allocator, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  startArray(*target, values_.size(), allocator);
  for (const std::string& value : values_) {
    target->PushBack(std::stoi(value), allocator);
  }
  return true;
}

AddArrayBooleanAction::AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values)
    : EditAction(keyPath) {
  std::transform(values.begin(), values.end(), std::back_inserter(values_), toLower);
}

bool AddArrayBooleanAction::apply(Value* target, Allocator& allocator, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  startArray(*target, values_.size(), allocator);
  bool rejected = false;
  // The list names every word, accepted or not, so that the whole argument can be recognised in the message.
  std::string words = "[ ";
  for (const std::string& value : values_) {
    const std::optional<bool> boolean = booleanFromWord(value);
    target->PushBack(boolean ? Value(*boolean) : Value(), allocator);
    rejected |= !boolean;
    words += value + ' ';
  }
  if (rejected) {
    reportRejectedBoolean(words + ']');
  }
  return true;
}

}  // namespace kovalt
