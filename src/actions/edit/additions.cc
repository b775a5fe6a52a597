#include "actions/edit/additions.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <optional>

#include "json/standard_streams.h"

namespace kovalt {
namespace {

std::string toLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return lower;
}

/// The boolean that a lower-case word means; nothing for a word that is not accepted.
std::optional<bool> booleanFromWord(std::string_view word) {
  if (word == "true" || word == "1") {
    return true;
  }
  if (word == "false" || word == "0") {
    return false;
  }
  return std::nullopt;
}

/// Reports that a word or a list of words is not accepted.
void reportRejectedBoolean(std::string_view rejected) {
  std::string message = "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, ";
  reportLine(message.append(rejected).append(" rejected."));
}

/// Replaces `target` by an array with the result of `makeElement` for each value. Returns false for a null target.
template <typename MakeElement>
bool setArray(Value* target, const std::vector<std::string>& values, Allocator& allocator, MakeElement makeElement) {
  if (target == nullptr) {
    return false;
  }
  target->SetArray();
  target->Reserve(static_cast<rapidjson::SizeType>(values.size()), allocator);
  for (const std::string& value : values) {
    target->PushBack(makeElement(value), allocator);
  }
  return true;
}

}  // namespace

bool AddStringAction::apply(Value* target, EditedDocument& document) const {
  if (target == nullptr) {
    return false;
  }
  *target = copyText(value_, document.allocator);
  return true;
}

bool AddNumberAction::apply(Value* target, EditedDocument& /*document*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetInt(std::stoi(value_));
  return true;
}

AddBooleanAction::AddBooleanAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(toLower(value)) {}

bool AddBooleanAction::apply(Value* target, EditedDocument& /*document*/) const {
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

bool AddObjectAction::apply(Value* target, EditedDocument& /*document*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetObject();
  return true;
}

bool AddArrayAction::apply(Value* target, EditedDocument& document) const {
  return setArray(target, values_, document.allocator,
                  [&](const std::string& value) { return Value(value.c_str(), document.allocator); });
}

bool AddArrayNumberAction::apply(Value* target, EditedDocument& document) const {
  return setArray(target, values_, document.allocator,
                  [](const std::string& value) { return Value(std::stoi(value)); });
}

AddArrayBooleanAction::AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values)
    : EditAction(keyPath) {
  std::transform(values.begin(), values.end(), std::back_inserter(values_), toLower);
}

bool AddArrayBooleanAction::apply(Value* target, EditedDocument& document) const {
  bool isRejected = false;
  // Lists all words, accepted or not: scripts know the message in this form.
  std::string words = "[ ";
  const bool isSet = setArray(target, values_, document.allocator, [&](const std::string& word) {
    const std::optional<bool> boolean = booleanFromWord(word);
    isRejected |= !boolean;
    words += word + ' ';
    return boolean ? Value(*boolean) : Value();
  });
  if (isRejected) {
    reportRejectedBoolean(words + ']');
  }
  return isSet;
}

}  // namespace kovalt
