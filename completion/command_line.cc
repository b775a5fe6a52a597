#include "completion/command_line.h"

#include <algorithm>

namespace kovalt {
namespace {

/// Returns the position after the arguments of the option at `position`. An empty word ends a list, except at the
/// cursor, where the user is about to type it.
std::size_t argumentsEnd(const FurtherArguments& further, const std::vector<std::string>& words, std::size_t position,
                         std::size_t cursor) {
  std::size_t end = position + 2;
  if (further.isList) {
    while (end < words.size() && (words[end].empty() ? end == cursor : words[end].front() != '-')) {
      ++end;
    }
  } else if (further.kind != ArgumentKind::none) {
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
    const std::size_t first = position + 1;
    const std::size_t end = argumentsEnd(option->further, words, position, cursor);
    if (option->effect == OptionEffect::workFile) {
      place.fileOptionGiven = true;
      if (place.filePath.empty() && first < end && first != cursor) {
        place.filePath = words[first];
      }
    }
    if (first <= cursor && cursor < end) {
      place.option = option;
      place.argument = cursor == first ? option->first : option->further.kind;
      place.inList = cursor != first && option->further.isList;
      place.keyPath = words[first];
    }
    position = end - 1;
  }
  return place;
}

}  // namespace kovalt
