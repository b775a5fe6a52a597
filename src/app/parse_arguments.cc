#include "app/parse_arguments.h"

#include <algorithm>
#include <utility>

#include "app/option_table.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

bool fail(const std::string& message) {
  printLine("Error: " + message);
  return false;
}

bool failForMissingArgument(std::string_view option) {
  // The prefix of every message makes the line say "Error: " twice, as scripts expect it.
  return fail("Error: missing argument(s) after " + std::string(option));
}

/// Parses the option at `position`, and moves `position` to its last argument.
bool parseOption(ToolContext& context, int& position, int argumentCount, const char* const* arguments) {
  const std::string_view form = arguments[position];
  const Option* option = findOption(form);
  if (option == nullptr) {
    return fail("invalid argument " + std::string(form));
  }
  if (option->effect == OptionEffect::workFile && !context.filePath.empty()) {
    return fail("--file already specified");
  }
  if (argumentCount - position <= option->requiredArguments) {
    return failForMissingArgument(form);
  }
  OptionArguments parsed;
  parsed.first = arguments[++position];
  if (option->further.isList) {
    parsed.list = collectValues(position, argumentCount, arguments);
  } else if (option->further.kind != ArgumentKind::none) {
    parsed.second = arguments[++position];
  }
  if (option->further.endsInSeparators) {
    if (parsed.list.size() < 2) {
      return failForMissingArgument(form);
    }
    parsed.separators = std::move(parsed.list.back());
    parsed.list.pop_back();
  }
  option->addTo(context, std::move(parsed));
  return true;
}

}  // namespace

bool parseArguments(ToolContext& context, int argumentCount, const char* const* arguments) {
  if (argumentCount == 1) {
    return false;
  }
  for (int position = 1; position < argumentCount; ++position) {
    if (!parseOption(context, position, argumentCount, arguments)) {
      return false;
    }
  }
  return true;
}

std::vector<std::string> collectValues(int& position, int argumentCount, const char* const* arguments) {
  std::vector<std::string> values;
  while (position + 1 < argumentCount) {
    const std::string_view next = arguments[position + 1];
    if (next.empty() || next.front() == '-') {
      break;
    }
    values.emplace_back(next);
    ++position;
  }
  return values.size() == 1 ? splitAt(values.front(), ',') : values;
}

std::vector<std::string> splitAt(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(separator), text.size());
    pieces.emplace_back(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return pieces;
}

}  // namespace kovalt
