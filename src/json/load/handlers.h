#pragma once

// What becomes of the values that are parsed: part of a document, or nothing.

#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "json/contract.h"
#include "json/document.h"
#include "json/load/reader_stream.h"
#include "json/load/scanner.h"

namespace kovalt {

/// The common base of the handlers of `parseValue`. The handlers also handle what RapidJSON's reader reads, for the
/// tokens that the scanner leaves to it. `Handler` is the derived class.
template <typename Handler>
class TokenHandler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Handler> {
 public:
  /// `reader` must outlive the handler.
  explicit TokenHandler(TokenReader& reader) : reader_(reader) {}

  bool name(Scanner& scanner) { return readText(scanner, scanner.readName()); }
  bool string(Scanner& scanner) { return readText(scanner, scanner.readString()); }

 protected:
  /// Lets RapidJSON's reader read the next token, which must not be the start of an array or object.
  template <unsigned parseFlags = rapidjson::kParseNoFlags>
  bool readByReader(Scanner& scanner) {
    require(scanner.peek() != '[' && scanner.peek() != '{');
    return scanner.lendCursor([this](InputBuffer& buffer) {
      ReaderStream stream(buffer);
      return !reader_.template Parse<parseFlags | rapidjson::kParseStopWhenDoneFlag>(stream, handler()).IsError();
    });
  }

 private:
  /// Handles `text`, the string that the scanner read. If it read none, RapidJSON's reader reads the string.
  bool readText(Scanner& scanner, std::optional<std::string_view> text) {
    return text ? handler().String(text->data(), static_cast<rapidjson::SizeType>(text->size()), true)
                : readByReader(scanner);
  }

  Handler& handler() { return static_cast<Handler&>(*this); }

  TokenReader& reader_;
};

/// Accepts the values that a `DocumentBuilder` accepts, and keeps nothing.
class Validator : public TokenHandler<Validator> {
 public:
  using TokenHandler::TokenHandler;

  bool name(Scanner& scanner) { return scanner.readName() || skipByReader(scanner); }
  bool string(Scanner& scanner) { return scanner.readString() || skipByReader(scanner); }
  bool other(Scanner& scanner) { return scanner.skipNumber() || scanner.skipLiteral() || skipByReader(scanner); }

  static bool open(char /*bracket*/, rapidjson::SizeType /*outerCount*/) { return true; }
  static rapidjson::SizeType close(char /*bracket*/, rapidjson::SizeType /*count*/) { return 0; }

  static bool Double(double value) { return std::isfinite(value); }

 private:
  /// Parses in situ, because strings are then kept nowhere.
  bool skipByReader(Scanner& scanner) { return readByReader<rapidjson::kParseInsituFlag>(scanner); }
};

/// Adds what is parsed to a document that is being populated. Rejects numbers that are too large for a double, which
/// RapidJSON's reader accepts in some forms: they cannot be written.
class DocumentBuilder : public TokenHandler<DocumentBuilder> {
 public:
  DocumentBuilder(TokenReader& reader, Document& document) : TokenHandler(reader), document_(document) {}

  bool other(Scanner& scanner) {
    const char first = scanner.peek();
    if (scanner.skipLiteral()) {
      return first == 'n' ? Null() : Bool(first == 't');
    }
    const std::optional<Number> number = scanner.readNumber();
    return number ? add(*number) : readByReader(scanner);
  }

  bool open(char bracket, rapidjson::SizeType outerCount) {
    outerCounts_.push_back(outerCount);
    return start(bracket);
  }
  /// Called only inside a container for which `open` returned true.
  rapidjson::SizeType close(char bracket, rapidjson::SizeType count) {
    require(!outerCounts_.empty());
    end(bracket, count);
    const rapidjson::SizeType outerCount = outerCounts_.back();
    outerCounts_.pop_back();
    return outerCount;
  }

  /// Starts an array or object with its opening bracket. Ends it with its closing one and its number of elements or
  /// members.
  bool start(char bracket) { return bracket == '{' ? document_.StartObject() : document_.StartArray(); }
  void end(char bracket, rapidjson::SizeType count) {
    bracket == '}' ? document_.EndObject(count) : document_.EndArray(count);
  }

  bool Null() { return document_.Null(); }
  bool Bool(bool value) { return document_.Bool(value); }
  bool Int(int value) { return document_.Int(value); }
  bool Uint(unsigned value) { return document_.Uint(value); }
  bool Int64(std::int64_t value) { return document_.Int64(value); }
  bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
  bool Double(double value) { return std::isfinite(value) && document_.Double(value); }
  bool String(const char* text, rapidjson::SizeType length, bool copy) { return document_.String(text, length, copy); }

 private:
  bool add(const Number& number) {
    if (number.decimals > 0) {
      return document_.Double(toDouble(number));
    }
    return number.isNegative ? document_.Int64(-static_cast<std::int64_t>(number.digits))
                             : document_.Uint64(number.digits);
  }

  Document& document_;
  std::vector<rapidjson::SizeType> outerCounts_;
};

}  // namespace kovalt
