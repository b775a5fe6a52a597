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
/// reader at a number that became infinite: it lets some pass, and the writers could not write them.
class ProjectingHandler {
 public:
  /// Both must live as long as the handler.
  ProjectingHandler(const Projection& projection, Document& document)
      : projection_(projection), document_(document), keptIn_(projection.size()) {}

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

  bool StartObject() {
    if (mode_ == Mode::choosing) {
      return chooseObject();
    }
    ++depth_;
    return mode_ == Mode::passing || document_.StartObject();
  }
  bool EndObject(rapidjson::SizeType memberCount) {
    if (mode_ == Mode::choosing) {
      return document_.EndObject(close());
    }
    return leave() == Mode::passing || document_.EndObject(memberCount);
  }

  bool StartArray() {
    if (mode_ == Mode::choosing) {
      return chooseArray();
    }
    ++depth_;
    return mode_ == Mode::passing || document_.StartArray();
  }
  bool EndArray(rapidjson::SizeType elementCount) {
    if (mode_ == Mode::choosing) {
      return document_.EndArray(close());
    }
    return leave() == Mode::passing || document_.EndArray(elementCount);
  }

  /// Named by the reader, but never called.
  static bool RawNumber(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return false; }

  /// Whether everything that comes next is passed over, until what is open ends.
  [[nodiscard]] bool isPassing() const { return mode_ == Mode::passing; }

  /// Whether the text of the string that comes next is looked at.
  [[nodiscard]] bool takesText(bool isName) const {
    return mode_ == Mode::whole || (mode_ == Mode::choosing && (isName || (next_ && projection_.keepsScalar(*next_))));
  }

  /// Takes a string or, with `isName`, the name of a member. Where `takesText` is false, any text will do.
  bool takeText(std::string_view text, bool isName) {
    const auto length = static_cast<rapidjson::SizeType>(text.size());
    if (!isName) {
      return takeScalar([=] { return document_.String(text.data(), length, true); });
    }
    return mode_ == Mode::passing || (mode_ == Mode::choosing && !chooseMember(text)) ||
           document_.Key(text.data(), length, true);
  }

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
  bool chooseObject();
  bool chooseArray();
  /// Whether the member that comes next is kept.
  bool chooseMember(std::string_view name);
  void open(Projection::Place place);
  /// Returns how many members or elements were kept.
  rapidjson::SizeType close();

  void enter(Mode mode) {
    mode_ = mode;
    depth_ = 1;
  }
  Mode leave() {
    const Mode left = mode_;
    if (--depth_ == 0) {
      mode_ = Mode::choosing;
    }
    return left;
  }

  const Projection& projection_;
  Document& document_;
  Mode mode_ = Mode::choosing;
  std::size_t depth_ = 0;                                      ///< Of what is open inside the value of the mode.
  std::optional<Projection::Place> next_ = Projection::kRoot;  ///< Where the value that comes next stands.
  std::vector<OpenContainer> open_;
  std::size_t opened_ = 0;
  std::vector<std::size_t> keptIn_;  ///< By its place, the number of the last object of which a member was kept.
};

}  // namespace kovalt
