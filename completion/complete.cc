#include "completion/complete.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "app/option_table.h"
#include "completion/command_line.h"
#include "completion/key_path_candidates.h"
#include "completion/key_path_projection.h"
#include "completion/starts_with.h"
#include "json/load/load_document.h"
#include "json/path/key_path.h"

namespace kovalt {
namespace {

using Values = std::vector<const Value*>;

std::vector<std::string> optionLines(std::string_view typed, bool withFileOptions) {
  std::vector<std::string> lines;
  for (const Option& option : kOptionTable) {
    if (option.effect == OptionEffect::workFile && !withFileOptions) {
      continue;
    }
    for (const std::string_view form : {option.longForm, option.shortForm}) {
      if (startsWith(form, typed)) {
        lines.push_back(std::string(form).append("\t").append(option.description));
      }
    }
  }
  return lines;
}

std::vector<std::string> booleanLines(std::string_view typed) {
  std::vector<std::string> lines;
  for (const std::string_view word : {"true", "false"}) {
    if (startsWith(word, typed)) {
      lines.emplace_back(word);
    }
  }
  return lines;
}

/// Returns the key paths of the file that the line names. Reads only regular files: a pipe could block the shell.
CandidateList keyPathList(const CursorPlace& place, std::string_view typed) {
  const std::string path(place.filePath);
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(path, unknown)) {
    return {};
  }
  const bool isField = place.argument == ArgumentKind::field;
  KeyPathUse use;
  Projection projection;
  Projection::Place from = Projection::kRoot;
  if (isField) {
    from = projection.addElements(projection.addWalk(KeyPath(place.keyPath), from));
  } else {
    use.selects = place.option->effect != OptionEffect::removal;
    use.namesArray = place.option->further.kind == ArgumentKind::field;
  }
  addCandidates(projection, from, typed, use);
  Document document;
  if (!loadProjected(path, projection, document, false)) {
    return {};
  }
  return keyPathCandidates(isField ? arrayElements(document, place.keyPath) : Values{&document}, typed, use);
}

Completion completeArgument(const CursorPlace& place, std::string_view typed) {
  switch (place.argument) {
    case ArgumentKind::keyPath:
    case ArgumentKind::field: {
      const CandidateList list = keyPathList(place, typed);
      return {false, list.isCut(), list.words()};
    }
    case ArgumentKind::booleanWord:
      return {false, false, booleanLines(typed)};
    case ArgumentKind::file:
      return {true, false, {}};
    case ArgumentKind::none:
    case ArgumentKind::value:
      break;
  }
  return {};
}

}  // namespace

Completion complete(const std::vector<std::string>& words, std::size_t cursor) {
  const CursorPlace place = findCursorPlace(words, cursor);
  const std::string_view typed = words[cursor];
  Completion completion = completeArgument(place, typed);
  if (place.option == nullptr || (place.inList && completion.lines.empty())) {
    completion.lines = optionLines(typed, !place.fileOptionGiven);
  }
  return completion;
}

}  // namespace kovalt
