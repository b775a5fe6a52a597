#include "json/tuning/rapidjson_steps.h"

#include <optional>
#include <string_view>

#include "json/projecting_handler.h"

namespace rapidjson {

template <>
template <>
void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ParseString<kParseStopWhenDoneFlag>(
    kovalt::InputStream& is, kovalt::ProjectingHandler& handler, bool isKey) {
  if (!handler.takesText(isKey)) {
    is.Take();
    kovalt::PassedText passed;
    ParseStringToStream<kParseStopWhenDoneFlag, UTF8<>, UTF8<>>(is, passed);
    RAPIDJSON_PARSE_ERROR_EARLY_RETURN_VOID;
    handler.takeText({}, isKey);
    return;
  }
  if (const std::optional<std::string_view> text = is.peekString()) {
    handler.takeText(*text, isKey);
    is.skip(text->size() + 1);
    is.Take();
    return;
  }
  is.Take();
  StackStream<char> text(stack_);
  ParseStringToStream<kParseStopWhenDoneFlag, UTF8<>, UTF8<>>(is, text);
  RAPIDJSON_PARSE_ERROR_EARLY_RETURN_VOID;
  const std::size_t length = text.Length() - 1;
  handler.takeText({text.Pop(), length}, isKey);
}

}  // namespace rapidjson
