#include "actions/edit/scalar_additions.h"

#include "actions/edit/boolean_word.h"
#include "json/text_value.h"

namespace kovalt {

AddStringAction::AddStringAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(value) {}

bool AddStringAction::apply(Value* target, Allocator& allocator, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  *target = copyText(value_, allocator);
  return true;
}

AddNumberAction::AddNumberAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(value) {}

bool AddNumberAction::apply(Value* target, Allocator& /*allocator*/, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetInt(std::stoi(value_));
  return true;
}

AddBooleanAction::AddBooleanAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(toLower(value)) {}

bool AddBooleanAction::apply(Value* target, Allocator& /*allocator*/, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  const std::optional<bool> boolean = booleanFromWord(value_);
  if (!boolean) {
    reportRejectedBoolean(value_);
    return false;
  }
  target->SetBool(*boolean);
  return true;
}

bool AddObjectAction::apply(Value* target, Allocator& /*allocator*/, MemberFinder& /*members*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetObject();
  return true;
}

}  // namespace kovalt
