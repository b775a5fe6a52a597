#include "json/find_object_by_ref.h"

#include <string>

#include "json/find_member.h"
#include "json/standard_streams.h"
#include "json/value_to_text.h"

namespace kovalt {
namespace {

enum class Match {
  yes,
  no,
  noAmongBadItems,  ///< An array without a match that holds items of a type that never matches.
  impossible,       ///< Nothing of this type can be selected by.
};

bool scalarMatches(const Value& scalar, std::string_view refValue) {
  if (scalar.IsNumber()) {
    return valueToText(scalar, false) == refValue;
  }
  // A string counts up to its first NUL byte.
  return std::string_view(scalar.GetString()) == refValue;
}

Match matchAnyItem(const Value& array, std::string_view refValue) {
  bool badItemSeen = false;
  for (const Value& item : array.GetArray()) {
    if (!item.IsNumber() && !item.IsString()) {
      badItemSeen = true;
    } else if (scalarMatches(item, refValue)) {
      return Match::yes;
    }
  }
  return badItemSeen ? Match::noAmongBadItems : Match::no;
}

Match matchMember(const Value& member, std::string_view refValue) {
  switch (member.GetType()) {
    case rapidjson::kFalseType:
      return refValue == "false" ? Match::yes : Match::no;
    case rapidjson::kTrueType:
      return refValue == "true" ? Match::yes : Match::no;
    case rapidjson::kNumberType:
    case rapidjson::kStringType:
      return scalarMatches(member, refValue) ? Match::yes : Match::no;
    case rapidjson::kArrayType:
      return matchAnyItem(member, refValue);
    case rapidjson::kNullType:
    case rapidjson::kObjectType:
      break;
  }
  return Match::impossible;
}

Match matchElement(const Value& element, std::string_view refKey, std::string_view refValue) {
  if (!element.IsObject()) {
    return Match::impossible;
  }
  const Value* member = findMember(element, refKey);
  return member == nullptr ? Match::no : matchMember(*member, refValue);
}

void reportNotFound(std::string_view refKey, std::string_view refValue, bool explainArgument) {
  std::string message = "Kovalt path not found with refKey=refValue \"";
  message.append(refKey).append("=").append(refValue).append("\"");
  reportLine(message);
  if (explainArgument) {
    reportLine(
        "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
        "refKey must be a bool/number/string/array of numbers/strings.");
  }
}

}  // namespace

const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue) {
  // A value that is no array gets no explanation, although the explanation speaks of just that. Kept: scripts know it.
  bool explainArgument = false;
  if (array != nullptr && array->IsArray()) {
    for (const Value& element : array->GetArray()) {
      const Match match = matchElement(element, refKey, refValue);
      if (match == Match::yes) {
        return &element;
      }
      explainArgument |= match != Match::no;
      if (match == Match::impossible) {
        break;
      }
    }
  }
  reportNotFound(refKey, refValue, explainArgument);
  return nullptr;
}

}  // namespace kovalt
