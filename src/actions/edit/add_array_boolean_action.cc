#include "actions/edit/add_array_boolean_action.h"

#include <algorithm>
#include <iterator>

#include "actions/edit/boolean_word.h"
#include "actions/edit/start_array.h"

namespace kovalt {

AddArrayBooleanAction::AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values)
    : EditAction(keyPath) {
  std::transform(values.begin(), values.end(), std::back_inserter(values_), toLower);
}

bool AddArrayBooleanAction::apply(Value* target, Allocator& allocator) const {
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
