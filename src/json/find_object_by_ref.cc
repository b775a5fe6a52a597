#include "json/find_object_by_ref.h"

#include <string>

#include "json/find_member.h"
#include "json/ref_value.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

enum class Match {
  yes,
  no,
  noAmongBadItems,  ///< An array without a match that holds items of a type that never matches.
  impossible,       ///< Nothing of this type can be selected by.
};

bool scalarMatches(const Value& scalar, std::string_view refValue) {
  // A string needs no copy.
  return scalar.IsString() ? scalar.GetString() == refValue : refValueOf(scalar) == refValue;
}

Match matchAnyItem(const Value& array, std::string_view refValue) {
  bool badItemSeen = false;
  for (const Value& item : array.GetArray()) {
    if (!itemCanSelect(item)) {
      badItemSeen = true;
    } else if (scalarMatches(item, refValue)) {
      return Match::yes;
    }
  }
  return badItemSeen ? Match::noAmongBadItems : Match::no;
}

Match matchMember(const Value& member, std::string_view refValue) {
  if (!canSelect(member)) {
    return Match::impossible;
  }
  if (member.IsArray()) {
    return matchAnyItem(member, refValue);
  }
  return scalarMatches(member, refValue) ? Match::yes : Match::no;
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
