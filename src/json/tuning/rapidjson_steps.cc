#include "json/tuning/rapidjson_steps.h"

#include <optional>
#include <string_view>

#include "json/projecting_handler.h"

namespace kovalt {
namespace {

/// Hands on a number without an exponent that starts at `text`, if it has up to seven digits and, after a point, up to
/// 16 with them: RapidJSON computes the value of those in the same way, digit by digit. Returns how long the number is,
/// or 0 if it is another one, or may go on after the end of the buffer.
[[gnu::noinline]] std::size_t takeShortNumber(const char* text, ProjectingHandler& handler) {
  constexpr std::uint32_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
  constexpr std::size_t kMostDigits = 16;
  const bool isNegative = *text == '-';
  const char* end = text + (isNegative ? 1 : 0);
  const WordBlock::Digits whole = WordBlock::readDigits(end);
  if (whole.count == 0 || whole.count == WordBlock::kSize || (*end == '0' && whole.count != 1)) {
    return 0;
  }
  end += whole.count;
  const auto isEnd = [&end] { return *end != '\0' && *end != 'e' && *end != 'E'; };
  if (*end != '.') {
    if (!isEnd()) {
      return 0;
    }
    const auto value = static_cast<unsigned>(whole.value);
    isNegative ? handler.Int(-static_cast<int>(value)) : handler.Uint(value);
    return static_cast<std::size_t>(end - text);
  }
  ++end;
  const WordBlock::Digits first = WordBlock::readDigits(end);
  end += first.count;
  const WordBlock::Digits second = WordBlock::readDigits(end);
  end += first.count == WordBlock::kSize ? second.count : 0;
  const std::size_t decimals = first.count == WordBlock::kSize ? first.count + second.count : first.count;
  if (decimals == 0 || whole.count + decimals > kMostDigits || !isEnd()) {
    return 0;
  }
  std::uint64_t digits = whole.value * kPowers[first.count] + first.value;
  if (first.count == WordBlock::kSize) {
    digits = digits * kPowers[second.count] + second.value;
  }
  const double value =
      rapidjson::internal::StrtodNormalPrecision(static_cast<double>(digits), -static_cast<int>(decimals));
  handler.Double(isNegative ? -value : value);
  return static_cast<std::size_t>(end - text);
}

}  // namespace
}  // namespace kovalt

namespace rapidjson {

template <>
template <>
void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ParseString<kParseDefaultFlags>(
    kovalt::InputStream& is, kovalt::ProjectingHandler& handler, bool isKey) {
  if (const std::optional<std::string_view> text = is.peekString()) {
    if (!handler.isPassing()) {
      handler.takeText(*text, isKey);
    }
    is.skip(text->size() + 2);
    return;
  }
  is.Take();
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
  if (const std::size_t length =
          handler.isPassing() ? is.peekNumber() : kovalt::takeShortNumber(is.peekText(), handler)) {
    is.skip(length);
    return;
  }
  // The flag means nothing to this step, but names the one of RapidJSON.
  ParseNumber<kParseStopWhenDoneFlag>(is, handler);
}

}  // namespace rapidjson
