#include "json/projected_parse.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "json/tuning/short_number.h"
#include "json/tuning/value_loop.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;
using Reader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator>;

/// What a value is read into: a handler of RapidJSON for all that the loop through values finds. The reader takes those
/// scalars that take more than one look.
template <typename Handler>
class Content : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Handler> {
 public:
  explicit Content(Reader& reader) : reader_(reader) {}

  bool takeName(InputStream& stream) { return takeText(stream, stream.peekName()); }
  bool takeString(InputStream& stream) { return takeText(stream, stream.peekString()); }

 protected:
  bool takeByReader(InputStream& stream) {
    InputStream rest = stream;  // The reader is given a copy, so that the place of the other can stand in a register.
    const bool parsed = !reader_.Parse<rapidjson::kParseStopWhenDoneFlag>(rest, handler()).IsError();
    stream = rest;
    return parsed;
  }

 private:
  bool takeText(InputStream& stream, std::optional<std::string_view> text) {
    if (!text) {
      return takeByReader(stream);
    }
    handler().String(text->data(), static_cast<SizeType>(text->size()), true);
    stream.takeString(*text);
    return true;
  }

  Handler& handler() { return static_cast<Handler&>(*this); }

  Reader& reader_;
};

/// Content that becomes part of a document.
class KeptContent : public Content<KeptContent> {
 public:
  KeptContent(Reader& reader, Document& document) : Content(reader), document_(document) {}

  bool takeOther(InputStream& stream) {
    const char first = stream.Peek();
    if (stream.takeLiteral()) {
      return first == 'n' ? Null() : Bool(first == 't');
    }
    const std::size_t length = takeShortNumber(stream.peekText(), document_);
    stream.skip(length);
    return length > 0 || takeByReader(stream);
  }

  bool start(char start) { return start == '{' ? document_.StartObject() : document_.StartArray(); }
  void end(char end, SizeType count) { end == '}' ? document_.EndObject(count) : document_.EndArray(count); }

  bool Null() { return document_.Null(); }
  bool Bool(bool value) { return document_.Bool(value); }
  bool Int(int value) { return document_.Int(value); }
  bool Uint(unsigned value) { return document_.Uint(value); }
  bool Int64(std::int64_t value) { return document_.Int64(value); }
  bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
  bool Double(double value) { return std::isfinite(value) && document_.Double(value); }
  bool String(const char* text, SizeType length, bool copy) { return document_.String(text, length, copy); }

 private:
  Document& document_;
};

/// Content that is passed over.
class PassedContent : public Content<PassedContent> {
 public:
  using Content::Content;

  static bool takeName(InputStream& stream) { return stream.passName(); }
  static bool takeString(InputStream& stream) { return stream.passString(); }
  bool takeOther(InputStream& stream) { return stream.passNumber() || stream.takeLiteral() || takeByReader(stream); }

  static bool start(char /*start*/) { return true; }
  static void end(char /*end*/, SizeType /*count*/) {}

  static bool Double(double value) { return std::isfinite(value); }
};

/// Content of which a projection keeps some.
class ChosenContent : public Content<ChosenContent> {
 public:
  ChosenContent(Reader& reader, const Projection& projection, Document& document)
      : Content(reader),
        projection_(projection),
        kept_(reader, document),
        passed_(reader),
        keptIn_(projection.size()) {}

  bool takeString(InputStream& stream) { return takeOther(stream); }
  bool takeOther(InputStream& stream);
  bool start(char start);
  void end(char end, SizeType count);

  /// Chooses whether the member with this name is kept.
  bool String(const char* name, SizeType length, bool copy);

 private:
  /// An array or object of which the projection keeps some elements or members.
  struct OpenContainer {
    Projection::Place place;
    std::size_t number;  ///< Of all such containers of the document.
    SizeType kept = 0;
  };

  const Projection& projection_;
  KeptContent kept_;
  PassedContent passed_;
  std::optional<Projection::Place> next_ = Projection::kRoot;  ///< Where the value that comes next stands.
  std::vector<OpenContainer> open_;
  std::size_t opened_ = 0;
  std::vector<std::size_t> keptIn_;  ///< For each place, the number of the last object whose member there was kept.
};

bool ChosenContent::takeOther(InputStream& stream) {
  const char first = stream.Peek();
  const bool isContainer = first == '{' || first == '[';
  if (!next_) {
    return takeValue(stream, passed_);
  }
  if (!open_.empty()) {
    ++open_.back().kept;
  }
  if (isContainer ? projection_.keepsWhole(*next_) : projection_.keepsScalar(*next_)) {
    return takeValue(stream, kept_);
  }
  if (isContainer) {
    kept_.start(first);
    kept_.end(first == '{' ? '}' : ']', 0);
  } else {
    kept_.Null();
  }
  return takeValue(stream, passed_);
}

bool ChosenContent::start(char start) {
  if (!next_ || projection_.keepsWhole(*next_)) {
    return false;
  }
  const auto elements = projection_.elements(*next_);
  if (start == '{' ? !projection_.keepsMembers(*next_) : !elements) {
    return false;
  }
  if (!open_.empty()) {
    ++open_.back().kept;
  }
  open_.push_back({*next_, ++opened_});
  next_ = elements;
  return kept_.start(start);
}

void ChosenContent::end(char end, SizeType /*count*/) {
  kept_.end(end, open_.back().kept);
  open_.pop_back();
  if (!open_.empty()) {
    next_ = projection_.elements(open_.back().place);
  }
}

bool ChosenContent::String(const char* name, SizeType length, bool copy) {
  const OpenContainer& object = open_.back();
  next_ = projection_.member(object.place, {name, length});
  if (next_ && keptIn_[*next_] == object.number && !projection_.isOfMany(*next_)) {
    // A second member of the same name.
    next_.reset();
  }
  if (next_) {
    keptIn_[*next_] = object.number;
    kept_.String(name, length, copy);
  }
  return true;
}

}  // namespace

bool parseProjected(InputStream& stream, const Projection& projection, Document& document) {
  stream.skipBlanks();
  Reader reader;
  ChosenContent content(reader, projection, document);
  return takeValue(stream, content) && stream.takeEnd();
}

}  // namespace kovalt
