#include "app/parse_arguments.h"

#include <string_view>
#include <utility>

#include "app/option_table.h"
#include "app/value_list.h"
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

/// Takes the last value of the list as the separators. Returns false where no value is left in front of it.
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
  if (option->effect == OptionEffect::workFile && !context.filePath.empty()) {
    return fail("--file already specified");
  }
  if (argumentCount - position <= option->requiredArguments) {
    return failForMissingArgument(form);
  }
  OptionArguments taken;
  taken.first = arguments[++position];
  if (option->further.isList) {
    taken.list = collectValues(position, argumentCount, arguments);
  } else if (option->further.kind != ArgumentKind::none) {
    taken.second = arguments[++position];
  }
  if (option->further.endsInSeparators && !takeSeparators(taken)) {
    return failForMissingArgument(form);
  }
  option->addTo(context, std::move(taken));
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

}  // namespace kovalt
