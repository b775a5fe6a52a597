#pragma once

// What stands between RapidJSON's reader and a document.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "json/document.h"
#include "json/projection.h"

namespace kovalt {

/// A handler of RapidJSON that hands on to a document what a projection keeps, and passes over the rest. Stops the
/// reader at a number that became infinite: it lets some pass, and the writers could not write them. The content of
/// arrays and objects that are kept as a whole or not at all is taken out of the stream at their start, so that the
/// reader finds them empty.
class ProjectingHandler {
 public:
  /// All must live as long as the handler.
  ProjectingHandler(const Projection& projection, InputStream& stream, Document& document)
      : projection_(projection), stream_(stream), document_(document), keptIn_(projection.size()) {}

  /// Reads the stream to its end. Returns whether it held exactly one JSON value.
  bool parse();

  /// Parses a value of `stream` that holds no others. Returns false where there is none.
  bool parseScalar(InputStream& stream);

  // The events of RapidJSON's reader. They return false to stop it.
  bool Null() {
    return takeScalar([this] { return document_.Null(); });
  }
  bool Bool(bool value) {
    return takeScalar([=] { return document_.Bool(value); });
  }
  bool Int(int value) {
    return takeScalar([=] { return document_.Int(value); });
  }
  bool Uint(unsigned value) {
    return takeScalar([=] { return document_.Uint(value); });
  }
  bool Int64(std::int64_t value) {
    return takeScalar([=] { return document_.Int64(value); });
  }
  bool Uint64(std::uint64_t value) {
    return takeScalar([=] { return document_.Uint64(value); });
  }
  bool Double(double value) {
    return std::isfinite(value) && takeScalar([=] { return document_.Double(value); });
  }

  bool StartObject() { return start('}'); }
  bool EndObject(rapidjson::SizeType /*memberCount*/) { return end('}'); }
  bool StartArray() { return start(']'); }
  bool EndArray(rapidjson::SizeType /*elementCount*/) { return end(']'); }

  /// Named by the reader, but never called.
  static bool RawNumber(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return false; }

  /// Whether the text of the string that comes next is looked at.
  [[nodiscard]] bool takesText(bool isName) const {
    return mode_ == Mode::whole || (mode_ == Mode::choosing && (isName || (next_ && projection_.keepsScalar(*next_))));
  }

  /// Takes a string or, with `isName`, the name of a member. Where `takesText` is false, any text will do.
  void takeText(std::string_view text, bool isName);

 private:
  enum class Mode {
    choosing,  ///< The projection is asked for each value.
    whole,     ///< Inside a value of which all is kept.
    passing,   ///< Inside a value that is passed over.
  };

  /// An array or object of which the projection keeps some elements or members.
  struct OpenContainer {
    Projection::Place place;
    std::size_t number;  ///< Of all such containers of the document.
    rapidjson::SizeType kept = 0;
  };

  template <typename Add>
  bool takeScalar(Add add) {
    if (mode_ == Mode::whole) {
      return add();
    }
    if (mode_ == Mode::passing || !countNext()) {
      return true;
    }
    return projection_.keepsScalar(*next_) ? add() : document_.Null();
  }

  /// Counts the value that comes next. Returns false where not even its kind is kept.
  bool countNext();
  /// Takes the start of an array or object that ends at `end`, and maybe its content. Kept out of the reader's
  /// recursive functions, whose stack frames decide how many steps a key path can have.
  bool start(char end);
  bool end(char end);
  /// Whether the member that comes next is kept.
  bool chooseMember(std::string_view name);

  const Projection& projection_;
  InputStream& stream_;
  Document& document_;
  rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> scalarReader_;
  Mode mode_ = Mode::choosing;
  std::optional<Projection::Place> next_ = Projection::kRoot;  ///< Where the value that comes next stands.
  std::vector<OpenContainer> open_;
  std::size_t opened_ = 0;
  std::vector<std::size_t> keptIn_;  ///< For each place, the number of the last object whose member there was kept.
};

}  // namespace kovalt
