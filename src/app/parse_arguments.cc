#include "app/parse_arguments.h"

#include <string_view>
#include <utility>

#include "app/option_table.h"
#include "app/split_at.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

bool fail(const std::string& message) {
  printLine("Error: " + message);
  return false;
}

bool failForMissingArgument(std::string_view option) {
  // With the prefix of every message the line says "Error: " twice, which scripts have come to know.
  return fail("Error: missing argument(s) after " + std::string(option));
}

/// The number of arguments that must follow an option, whatever they look like.
int requiredArguments(ArgumentShape shape) {
  switch (shape) {
    case ArgumentShape::keyPath:
    case ArgumentShape::keyPathAndList:
    case ArgumentShape::file:
    case ArgumentShape::workFile:
      break;
    case ArgumentShape::keyPathAndValue:
    case ArgumentShape::keyPathAndFile:
    case ArgumentShape::keyPathAndFields:
    case ArgumentShape::keyPathFieldsAndSeparators:
      return 2;
  }
  return 1;
}

bool hasList(ArgumentShape shape) {
  return shape == ArgumentShape::keyPathAndList || shape == ArgumentShape::keyPathAndFields ||
         shape == ArgumentShape::keyPathFieldsAndSeparators;
}

bool takeSeparators(OptionArguments& arguments) {
  if (arguments.list.size() < 2) {
    return false;
  }
  arguments.separators = std::move(arguments.list.back());
  arguments.list.pop_back();
  return true;
}

/// Parses the option at `position` and moves on to its last argument.
bool parseOption(ToolContext& context, int& position, int argumentCount, const char* const* arguments) {
  const std::string_view form = arguments[position];
  const Option* option = findOption(form);
  if (option == nullptr) {
    return fail("invalid argument " + std::string(form));
  }
  if (option->shape == ArgumentShape::workFile && !context.filePath.empty()) {
    return fail("--file already specified");
  }
  if (argumentCount - position <= requiredArguments(option->shape)) {
    return failForMissingArgument(form);
  }
  OptionArguments taken;
  taken.first = arguments[++position];
  if (hasList(option->shape)) {
    taken.list = collectValues(position, argumentCount, arguments);
  } else if (requiredArguments(option->shape) == 2) {
    taken.second = arguments[++position];
  }
  if (option->shape == ArgumentShape::keyPathFieldsAndSeparators && !takeSeparators(taken)) {
    return failForMissingArgument(form);
  }
  option->addTo(context, std::move(taken));
  return true;
}

}  // namespace

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

}  // namespace kovalt
