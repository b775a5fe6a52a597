#include "app/option_table.h"

#include <memory>
#include <utility>

#include "actions/edit/add_file_at_action.h"
#include "actions/edit/additions.h"
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
  arguments.separators = ' ';
  addConcatenation(context, std::move(arguments));
}

void setFile(ToolContext& context, OptionArguments&& arguments) { context.filePath = std::move(arguments.first); }

void setDisplayedFile(ToolContext& context, OptionArguments&& arguments) {
  setFile(context, std::move(arguments));
  context.displayResult = true;
}

// What may follow the first argument of an option.
constexpr FurtherArguments kNothing = {};
constexpr FurtherArguments kValue = {ArgumentKind::value, false, false};
constexpr FurtherArguments kBooleanWord = {ArgumentKind::booleanWord, false, false};
constexpr FurtherArguments kFile = {ArgumentKind::file, false, false};
constexpr FurtherArguments kValues = {ArgumentKind::value, true, false};
constexpr FurtherArguments kBooleanWords = {ArgumentKind::booleanWord, true, false};
constexpr FurtherArguments kFields = {ArgumentKind::field, true, false};
constexpr FurtherArguments kFieldsAndSeparators = {ArgumentKind::field, true, true};

constexpr ArgumentKind kKeyPath = ArgumentKind::keyPath;
constexpr OptionEffect kEdit = OptionEffect::edit;
constexpr OptionEffect kRead = OptionEffect::read;

}  // namespace

const std::array<Option, 21> kOptionTable = {{
    {"--addString", "-as", kKeyPath, kValue, 2, kEdit, "set a string", addEditOfValue<AddStringAction>},
    {"--addBoolean", "-ab", kKeyPath, kBooleanWord, 2, kEdit, "set a boolean", addEditOfValue<AddBooleanAction>},
    {"--addNumber", "-an", kKeyPath, kValue, 2, kEdit, "set an integer", addEditOfValue<AddNumberAction>},
    {"--addObject", "-ao", kKeyPath, kNothing, 1, kEdit, "set an empty object", addEditOfKey<AddObjectAction>},
    {"--addArray", "-aa", kKeyPath, kValues, 1, kEdit, "set an array of strings", addEditOfList<AddArrayAction>},
    {"--addArrayBoolean", "-aab", kKeyPath, kBooleanWords, 1, kEdit, "set an array of booleans",
     addEditOfList<AddArrayBooleanAction>},
    {"--addArrayNumber", "-aan", kKeyPath, kValues, 1, kEdit, "set an array of integers",
     addEditOfList<AddArrayNumberAction>},
    {"--addFile", "-af", ArgumentKind::file, kNothing, 1, kEdit, "merge a JSON file into the document", addFileAtRoot},
    {"--addFileAt", "-afat", kKeyPath, kFile, 2, kEdit, "merge a JSON file into the object at a key path",
     addEditOfValue<AddFileAtAction>},
    {"--remove", "-rm", kKeyPath, kNothing, 1, OptionEffect::removal, "remove a member",
     addRemoval<EmptyParents::keep>},
    {"--removeAndClear", "-rmc", kKeyPath, kNothing, 1, OptionEffect::removal,
     "remove a member and the objects that it leaves empty", addRemoval<EmptyParents::clear>},
    {"--read", "-r", kKeyPath, kNothing, 1, kRead, "print a value", addRead<ReadAction>},
    {"--readArraySpace", "-ras", kKeyPath, kNothing, 1, kRead, "print an array, separated by spaces",
     addRead<ReadArraySpaceAction>},
    {"--readArraySpaceNoQuote", "-rasq", kKeyPath, kNothing, 1, kRead, "print an array, separated by spaces, no quotes",
     addRead<ReadArraySpaceNoQuoteAction>},
    // The usage text also calls it the equivalent of the comma form, which is wrong.
    {"--readArray", "-ra", kKeyPath, kNothing, 1, kRead, "another name of --readArraySpaceNoQuote",
     addRead<ReadArraySpaceNoQuoteAction>},
    {"--readArrayComma", "-rac", kKeyPath, kNothing, 1, kRead, "print an array, separated by commas",
     addRead<ReadArrayCommaAction>},
    {"--readArrayCommaNoQuote", "-racq", kKeyPath, kNothing, 1, kRead, "print an array, separated by commas, no quotes",
     addRead<ReadArrayCommaNoQuoteAction>},
    {"--readObjectArrayConcat", "-roac", kKeyPath, kFields, 2, kRead,
     "print fields of each object of an array, joined by spaces", addSpacedConcatenation},
    {"--readObjectArrayConcatSep", "-roacs", kKeyPath, kFieldsAndSeparators, 2, kRead,
     "print fields of each object of an array, joined by separators", addConcatenation},
    {"--file", "-f", ArgumentKind::file, kNothing, 1, OptionEffect::workFile, "the file to work on", setFile},
    {"--fileDisplay", "-fd", ArgumentKind::file, kNothing, 1, OptionEffect::workFile,
     "the file to work on, which is also displayed", setDisplayedFile},
}};

const Option* findOption(std::string_view form) {
  for (const Option& option : kOptionTable) {
    if (option.longForm == form || option.shortForm == form) {
      return &option;
    }
  }
  return nullptr;
}

}  // namespace kovalt
