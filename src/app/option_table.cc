#include "app/option_table.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "actions/edit/add_array_action.h"
#include "actions/edit/add_array_boolean_action.h"
#include "actions/edit/add_array_number_action.h"
#include "actions/edit/add_boolean_action.h"
#include "actions/edit/add_file_at_action.h"
#include "actions/edit/add_number_action.h"
#include "actions/edit/add_object_action.h"
#include "actions/edit/add_string_action.h"
#include "actions/read/read_array_actions.h"
#include "actions/read/read_object_array_concat_action.h"

namespace kovalt {
namespace {

template <typename Action>
void addEditOfKey(ToolContext& context, OptionArguments&& arguments) {
  context.editActions.push_back(std::make_unique<Action>(arguments.first));
}

template <typename Action>
void addEditOfValue(ToolContext& context, OptionArguments&& arguments) {
  context.editActions.push_back(std::make_unique<Action>(arguments.first, arguments.second));
}

template <typename Action>
void addEditOfList(ToolContext& context, OptionArguments&& arguments) {
  context.editActions.push_back(std::make_unique<Action>(arguments.first, std::move(arguments.list)));
}

void addFileAtRoot(ToolContext& context, OptionArguments&& arguments) {
  context.editActions.push_back(std::make_unique<AddFileAtAction>("", arguments.first));
}

template <EmptyParents emptyParents>
void addRemoval(ToolContext& context, OptionArguments&& arguments) {
  context.removeActions.push_back(std::make_unique<RemoveAction>(arguments.first, emptyParents));
}

template <typename Action>
void addRead(ToolContext& context, OptionArguments&& arguments) {
  context.readActions.push_back(std::make_unique<Action>(arguments.first));
}

void addConcatenation(ToolContext& context, OptionArguments&& arguments) {
  context.readActions.push_back(
      std::make_unique<ReadObjectArrayConcatAction>(arguments.first, arguments.list, arguments.separators));
}

void addSpacedConcatenation(ToolContext& context, OptionArguments&& arguments) {
  arguments.separators = " ";
  addConcatenation(context, std::move(arguments));
}

void setFile(ToolContext& context, OptionArguments&& arguments) { context.filePath = std::move(arguments.first); }

void setDisplayedFile(ToolContext& context, OptionArguments&& arguments) {
  setFile(context, std::move(arguments));
  context.displayResult = true;
}

constexpr std::array<Option, kOptionCount> kOptions = {{
    {"--addString", "-as", ArgumentShape::keyPathAndValue, addEditOfValue<AddStringAction>},
    {"--addBoolean", "-ab", ArgumentShape::keyPathAndValue, addEditOfValue<AddBooleanAction>},
    {"--addNumber", "-an", ArgumentShape::keyPathAndValue, addEditOfValue<AddNumberAction>},
    {"--addObject", "-ao", ArgumentShape::keyPath, addEditOfKey<AddObjectAction>},
    {"--addArray", "-aa", ArgumentShape::keyPathAndList, addEditOfList<AddArrayAction>},
    {"--addArrayBoolean", "-aab", ArgumentShape::keyPathAndList, addEditOfList<AddArrayBooleanAction>},
    {"--addArrayNumber", "-aan", ArgumentShape::keyPathAndList, addEditOfList<AddArrayNumberAction>},
    {"--addFile", "-af", ArgumentShape::file, addFileAtRoot},
    {"--addFileAt", "-afat", ArgumentShape::keyPathAndFile, addEditOfValue<AddFileAtAction>},
    {"--remove", "-rm", ArgumentShape::keyPath, addRemoval<EmptyParents::keep>},
    {"--removeAndClear", "-rmc", ArgumentShape::keyPath, addRemoval<EmptyParents::clear>},
    {"--read", "-r", ArgumentShape::keyPath, addRead<ReadAction>},
    {"--readArraySpace", "-ras", ArgumentShape::keyPath, addRead<ReadArraySpaceAction>},
    {"--readArraySpaceNoQuote", "-rasq", ArgumentShape::keyPath, addRead<ReadArraySpaceNoQuoteAction>},
    // A second name of the option above it, although the usage text also likens it to the comma form.
    {"--readArray", "-ra", ArgumentShape::keyPath, addRead<ReadArraySpaceNoQuoteAction>},
    {"--readArrayComma", "-rac", ArgumentShape::keyPath, addRead<ReadArrayCommaAction>},
    {"--readArrayCommaNoQuote", "-racq", ArgumentShape::keyPath, addRead<ReadArrayCommaNoQuoteAction>},
    {"--readObjectArrayConcat", "-roac", ArgumentShape::keyPathAndFields, addSpacedConcatenation},
    {"--readObjectArrayConcatSep", "-roacs", ArgumentShape::keyPathFieldsAndSeparators, addConcatenation},
    {"--file", "-f", ArgumentShape::workFile, setFile},
    {"--fileDisplay", "-fd", ArgumentShape::workFile, setDisplayedFile},
}};

}  // namespace

const std::array<Option, kOptionCount>& optionTable() { return kOptions; }

const Option* findOption(std::string_view form) {
  const auto* option = std::find_if(kOptions.begin(), kOptions.end(), [form](const Option& candidate) {
    return candidate.longForm == form || candidate.shortForm == form;
  });
  return option == kOptions.end() ? nullptr : option;
}

}  // namespace kovalt
