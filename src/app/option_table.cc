#include "app/option_table.h"

#include <iterator>
#include <memory>
#include <utility>

#include "actions/edit/add_file_at_action.h"
#include "actions/edit/array_additions.h"
#include "actions/edit/scalar_additions.h"
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
  auto action = std::make_unique<Action>(arguments.first);
  action->keepValue(context.projection, Projection::kRoot);
  context.readActions.push_back(std::move(action));
}

void addConcatenation(ToolContext& context, OptionArguments&& arguments) {
  auto action = std::make_unique<ReadObjectArrayConcatAction>(arguments.first, arguments.list, arguments.separators);
  action->keepFields(context.projection, Projection::kRoot);
  context.readActions.push_back(std::move(action));
}

void addSpacedConcatenation(ToolContext& context, OptionArguments&& arguments) {
  arguments.separators = ' ';
  addConcatenation(context, std::move(arguments));
}

void setFile(ToolContext& context, OptionArguments&& arguments) { context.filePath = std::move(arguments.first); }

void setDisplayedFile(ToolContext& context, OptionArguments&& arguments) {
  setFile(context, std::move(arguments));
  context.displayResult = true;
}

// What follows the first argument of an option.
constexpr FurtherArguments kNothing = {};
constexpr FurtherArguments kValue = {ArgumentKind::value, false, false};
constexpr FurtherArguments kBooleanWord = {ArgumentKind::booleanWord, false, false};
constexpr FurtherArguments kFile = {ArgumentKind::file, false, false};
constexpr FurtherArguments kValues = {ArgumentKind::value, true, false};
constexpr FurtherArguments kBooleanWords = {ArgumentKind::booleanWord, true, false};
constexpr FurtherArguments kFields = {ArgumentKind::field, true, false};
constexpr FurtherArguments kFieldsAndSeparators = {ArgumentKind::field, true, true};

constexpr Option kOptions[] = {
    {"--addString", "-as", ArgumentKind::keyPath, kValue, 2, OptionEffect::edit, "set a string",
     addEditOfValue<AddStringAction>},
    {"--addBoolean", "-ab", ArgumentKind::keyPath, kBooleanWord, 2, OptionEffect::edit, "set a boolean",
     addEditOfValue<AddBooleanAction>},
    {"--addNumber", "-an", ArgumentKind::keyPath, kValue, 2, OptionEffect::edit, "set an integer",
     addEditOfValue<AddNumberAction>},
    {"--addObject", "-ao", ArgumentKind::keyPath, kNothing, 1, OptionEffect::edit, "set an empty object",
     addEditOfKey<AddObjectAction>},
    {"--addArray", "-aa", ArgumentKind::keyPath, kValues, 1, OptionEffect::edit, "set an array of strings",
     addEditOfList<AddArrayAction>},
    {"--addArrayBoolean", "-aab", ArgumentKind::keyPath, kBooleanWords, 1, OptionEffect::edit,
     "set an array of booleans", addEditOfList<AddArrayBooleanAction>},
    {"--addArrayNumber", "-aan", ArgumentKind::keyPath, kValues, 1, OptionEffect::edit, "set an array of integers",
     addEditOfList<AddArrayNumberAction>},
    {"--addFile", "-af", ArgumentKind::file, kNothing, 1, OptionEffect::edit, "merge a JSON file into the document",
     addFileAtRoot},
    {"--addFileAt", "-afat", ArgumentKind::keyPath, kFile, 2, OptionEffect::edit,
     "merge a JSON file into the object at a key path", addEditOfValue<AddFileAtAction>},
    {"--remove", "-rm", ArgumentKind::keyPath, kNothing, 1, OptionEffect::removal, "remove a member",
     addRemoval<EmptyParents::keep>},
    {"--removeAndClear", "-rmc", ArgumentKind::keyPath, kNothing, 1, OptionEffect::removal,
     "remove a member and the objects that it leaves empty", addRemoval<EmptyParents::clear>},
    {"--read", "-r", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read, "print a value", addRead<ReadAction>},
    {"--readArraySpace", "-ras", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read,
     "print an array, blanks between the elements", addRead<ReadArraySpaceAction>},
    {"--readArraySpaceNoQuote", "-rasq", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read,
     "print an array, blanks between the elements, no quotes", addRead<ReadArraySpaceNoQuoteAction>},
    // The usage text also likens it to the comma form, but this is what it does.
    {"--readArray", "-ra", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read,
     "another name of --readArraySpaceNoQuote", addRead<ReadArraySpaceNoQuoteAction>},
    {"--readArrayComma", "-rac", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read,
     "print an array, commas between the elements", addRead<ReadArrayCommaAction>},
    {"--readArrayCommaNoQuote", "-racq", ArgumentKind::keyPath, kNothing, 1, OptionEffect::read,
     "print an array, commas between the elements, no quotes", addRead<ReadArrayCommaNoQuoteAction>},
    {"--readObjectArrayConcat", "-roac", ArgumentKind::keyPath, kFields, 2, OptionEffect::read,
     "print fields of each object of an array, joined by blanks", addSpacedConcatenation},
    {"--readObjectArrayConcatSep", "-roacs", ArgumentKind::keyPath, kFieldsAndSeparators, 2, OptionEffect::read,
     "print fields of each object of an array, joined by separators", addConcatenation},
    {"--file", "-f", ArgumentKind::file, kNothing, 1, OptionEffect::workFile, "the file to work on", setFile},
    {"--fileDisplay", "-fd", ArgumentKind::file, kNothing, 1, OptionEffect::workFile,
     "the file to work on, which is also displayed", setDisplayedFile},
};

}  // namespace

const Option* OptionTable::begin() { return std::begin(kOptions); }

const Option* OptionTable::end() { return std::end(kOptions); }

const Option* findOption(std::string_view form) {
  for (const Option& option : OptionTable()) {
    if (option.longForm == form || option.shortForm == form) {
      return &option;
    }
  }
  return nullptr;
}

}  // namespace kovalt
