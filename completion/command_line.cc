#include "completion/command_line.h"

#include <algorithm>
#include <optional>

namespace kovalt {
namespace {

/// The roles of the arguments of an option.
struct ArgumentRoles {
  WordRole first;
  std::optional<WordRole> next;
  bool nextIsList;
};

ArgumentRoles rolesOf(ArgumentShape shape) {
  switch (shape) {
    case ArgumentShape::keyPathAndValue:
      return {WordRole::keyPath, WordRole::value, false};
    case ArgumentShape::keyPathAndFile:
      return {WordRole::keyPath, WordRole::file, false};
    case ArgumentShape::keyPathAndList:
      return {WordRole::keyPath, WordRole::value, true};
    case ArgumentShape::keyPathAndFields:
    case ArgumentShape::keyPathFieldsAndSeparators:
      return {WordRole::keyPath, WordRole::field, true};
    case ArgumentShape::file:
    case ArgumentShape::workFile:
      return {WordRole::file, std::nullopt, false};
    case ArgumentShape::keyPath:
      break;
  }
  return {WordRole::keyPath, std::nullopt, false};
}

/// The position behind the arguments of the option at `position`. An empty word ends a list, but not at the cursor,
/// where it is about to be typed.
std::size_t argumentsEnd(const ArgumentRoles& roles, const std::vector<std::string>& words, std::size_t position,
                         std::size_t cursor) {
  std::size_t end = position + 2;
  if (roles.nextIsList) {
    while (end < words.size() && (words[end].empty() ? end == cursor : words[end].front() != '-')) {
      ++end;
    }
  } else if (roles.next) {
    ++end;
  }
  return std::min(end, words.size());
}

}  // namespace

CursorPlace findCursorPlace(const std::vector<std::string>& words, std::size_t cursor) {
  CursorPlace place;
  for (std::size_t position = 1; position < words.size(); ++position) {
    const Option* option = position == cursor ? nullptr : findOption(words[position]);
    if (option == nullptr) {
      continue;
    }
    const ArgumentRoles roles = rolesOf(option->shape);
    const std::size_t first = position + 1;
    const std::size_t end = argumentsEnd(roles, words, position, cursor);
    if (option->shape == ArgumentShape::workFile) {
      place.fileOptionGiven = true;
      if (place.filePath.empty() && first < end && first != cursor) {
        place.filePath = words[first];
      }
    }
    if (first <= cursor && cursor < end) {
      place.role = cursor == first ? roles.first : *roles.next;
      place.option = option;
      place.inList = cursor != first && roles.nextIsList;
      place.keyPath = words[first];
    }
    position = end - 1;
  }
  return place;
}

}  // namespace kovalt
