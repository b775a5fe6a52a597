#include "completion/complete.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "actions/edit/add_array_boolean_action.h"
#include "actions/edit/add_boolean_action.h"
#include "app/option_table.h"
#include "app/usage_text.h"
#include "completion/command_line.h"
#include "completion/key_path_candidates.h"
#include "completion/starts_with.h"
#include "json/load_document.h"

namespace kovalt {
namespace {

/// What the usage text says of an option.
std::string description(const Option& option) {
  const std::string_view usage = usageText();
  const std::size_t row = usage.find("\n  " + std::string(option.longForm) + " or ");
  if (row == std::string_view::npos) {
    return "";
  }
  const std::size_t start = usage.find(": ", row) + 2;
  return std::string(usage.substr(start, usage.find('\n', start) - start));
}

std::vector<std::string> optionLines(std::string_view typed, bool withFileOptions) {
  std::vector<std::string> lines;
  for (const Option& option : optionTable()) {
    if (option.shape == ArgumentShape::workFile && !withFileOptions) {
      continue;
    }
    for (const std::string_view form : {option.longForm, option.shortForm}) {
      if (startsWith(form, typed)) {
        lines.push_back(std::string(form) + '\t' + description(option));
      }
    }
  }
  return lines;
}

/// What the option adds to a run, whatever its arguments are.
ToolContext effectOf(const Option& option) {
  ToolContext context;
  option.addTo(context, {});
  return context;
}

bool isRemoval(const Option& option) { return !effectOf(option).removeActions.empty(); }

bool takesBooleans(const Option& option) {
  const ToolContext effect = effectOf(option);
  if (effect.editActions.empty()) {
    return false;
  }
  const EditAction* action = effect.editActions.front().get();
  return dynamic_cast<const AddBooleanAction*>(action) != nullptr ||
         dynamic_cast<const AddArrayBooleanAction*>(action) != nullptr;
}

bool takesFields(const Option& option) {
  return option.shape == ArgumentShape::keyPathAndFields || option.shape == ArgumentShape::keyPathFieldsAndSeparators;
}

std::vector<std::string> valueLines(const Option& option, std::string_view typed) {
  std::vector<std::string> lines;
  if (takesBooleans(option)) {
    for (const std::string_view word : {"true", "false"}) {
      if (startsWith(word, typed)) {
        lines.emplace_back(word);
      }
    }
  }
  return lines;
}

/// The key paths out of the file of the line. Only a regular file is read: from a pipe the shell would wait for ever.
std::vector<std::string> keyPathLines(const CursorPlace& place, std::string_view typed) {
  const std::string path(place.filePath);
  std::error_code unknown;
  Document document;
  if (!std::filesystem::is_regular_file(path, unknown) || !loadDocument(path, document, false)) {
    return {};
  }
  if (place.role == WordRole::field) {
    return keyPathCandidates(arrayElements(document, place.keyPath), typed, {});
  }
  return keyPathCandidates({&document}, typed, {!isRemoval(*place.option), takesFields(*place.option)});
}

}  // namespace

Completion complete(const std::vector<std::string>& words, std::size_t cursor) {
  const CursorPlace place = findCursorPlace(words, cursor);
  const std::string_view typed = words[cursor];
  Completion completion;
  switch (place.role) {
    case WordRole::option:
      break;
    case WordRole::file:
      completion.takesFile = true;
      return completion;
    case WordRole::keyPath:
    case WordRole::field:
      completion.lines = keyPathLines(place, typed);
      break;
    case WordRole::value:
      completion.lines = valueLines(*place.option, typed);
      break;
  }
  if (place.role == WordRole::option || (place.inList && completion.lines.empty())) {
    completion.lines = optionLines(typed, !place.fileOptionGiven);
  }
  return completion;
}

}  // namespace kovalt
