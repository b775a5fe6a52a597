#include "json/tuning/rapidjson_steps.h"

#include <optional>
#include <string_view>

#include "json/projecting_handler.h"

namespace rapidjson {

template <>
template <>
void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ParseString<kParseDefaultFlags>(
    kovalt::InputStream& is, kovalt::ProjectingHandler& handler, bool isKey) {
  is.Take();
  if (const std::optional<std::string_view> text = is.peekString()) {
    if (!handler.isPassing()) {
      handler.takeText(*text, isKey);
    }
    is.skip(text->size() + 1);
    return;
  }
  if (!handler.takesText(isKey)) {
    kovalt::PassedText passed;
    ParseStringToStream<kParseDefaultFlags, UTF8<>, UTF8<>>(is, passed);
    RAPIDJSON_PARSE_ERROR_EARLY_RETURN_VOID;
    handler.takeText({}, isKey);
    return;
  }
  StackStream<char> text(stack_);
  ParseStringToStream<kParseDefaultFlags, UTF8<>, UTF8<>>(is, text);
  RAPIDJSON_PARSE_ERROR_EARLY_RETURN_VOID;
  const std::size_t length = text.Length() - 1;
  handler.takeText({text.Pop(), length}, isKey);
}

template <>
template <>
void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ParseNumber<kParseDefaultFlags>(
    kovalt::InputStream& is, kovalt::ProjectingHandler& handler) {
  if (const std::size_t length = handler.isPassing() ? is.peekNumber() : 0) {
    is.skip(length);
    return;
  }
  // The flag means nothing to this step, but names the one of RapidJSON.
  ParseNumber<kParseStopWhenDoneFlag>(is, handler);
}

}  // namespace rapidjson
