#include "fuzz/plain_value.h"

#include "json/write/write_value.h"

namespace kovalt::fuzz {
namespace {

bool removePlainMember(PlainValue& object, const std::string& name) {
  for (auto& member : object.members) {
    if (member.first == name) {
      std::swap(member, object.members.back());
      object.members.pop_back();
      return true;
    }
  }
  return false;
}

}  // namespace

bool PlainValue::operator==(const PlainValue& other) const {
  return type == other.type && text == other.text && elements == other.elements && members == other.members;
}

PlainValue plainValue(const Value& value) {
  PlainValue plain;
  plain.type = value.GetType();
  if (value.IsObject()) {
    for (const auto& member : value.GetObject()) {
      plain.members.emplace_back(std::string(member.name.GetString(), member.name.GetStringLength()),
                                 plainValue(member.value));
    }
  } else if (value.IsArray()) {
    for (const Value& element : value.GetArray()) {
      plain.elements.push_back(plainValue(element));
    }
  } else {
    plain.text = valueToText(value, false);
  }
  return plain;
}

PlainValue* plainMember(PlainValue& object, const std::string& name) {
  for (auto& member : object.members) {
    if (member.first == name) {
      return &member.second;
    }
  }
  return nullptr;
}

PlainMerge mergePlain(PlainValue& target, const PlainValue& source) {
  if (source.type != rapidjson::kObjectType) {
    return {Exit::notAnObject, {}};
  }
  for (const auto& [name, value] : source.members) {
    if (target.type != rapidjson::kObjectType) {
      return {Exit::notAnObject, {}};
    }
    PlainValue* existing = plainMember(target, name);
    if (existing == nullptr) {
      target.members.emplace_back(name, value);
    } else if (existing->type != value.type) {
      return {Exit::typeClash, name};
    } else if (value.type == rapidjson::kArrayType) {
      existing->elements.insert(existing->elements.end(), value.elements.begin(), value.elements.end());
    } else if (value.type != rapidjson::kObjectType) {
      *existing = value;
    } else if (PlainMerge inner = mergePlain(*existing, value); inner.earlyExit) {
      return inner;
    }
  }
  return {};
}

PlainRemoval removePlain(PlainValue& root, const std::vector<std::string>& steps, bool clearEmptyParents) {
  PlainRemoval removal;
  if (steps.empty()) {
    return removal;
  }
  if (steps.size() == 1) {
    if (root.type != rapidjson::kObjectType) {
      removal.earlyExit = Exit::notAnObject;
    } else {
      removal.succeeded = removePlainMember(root, steps[0]);
    }
    return removal;
  }
  std::vector<PlainValue*> table(steps.size(), nullptr);
  table[0] = &root;
  PlainValue* current = &root;
  for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
    PlainValue* member = plainMember(*current, steps[i]);
    if (member != nullptr && member->type == rapidjson::kObjectType) {
      current = member;
      table[i + 1] = member;
    }
  }
  if (!removePlainMember(*current, steps.back()) || !clearEmptyParents) {
    return removal;
  }
  for (std::size_t j = steps.size() - 1; j >= 1; --j) {
    if (table[j] == nullptr || (table[j]->members.empty() && table[j - 1] == nullptr)) {
      removal.earlyExit = Exit::skippedStep;
      return removal;
    }
    if (table[j]->members.empty()) {
      removal.succeeded = removePlainMember(*table[j - 1], steps[j - 1]) && removal.succeeded;
    }
  }
  return removal;
}

}  // namespace kovalt::fuzz
