#include "json/projecting_handler.h"

#include "json/tuning/content_loop.h"
#include "json/tuning/short_number.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

/// Content of which the handler parses what takes more than one look.
struct Content {
  ProjectingHandler& handler;

  bool takeHard(InputStream& stream) const {
    InputStream rest = stream;  // Nobody is given the other one, so that its place can stand in a register.
    const bool parsed = handler.parseScalar(rest);
    stream = rest;
    return parsed;
  }
};

/// Content that becomes part of a document.
struct KeptContent : Content {
  Document& document;

  void text(std::string_view text) { document.String(text.data(), static_cast<SizeType>(text.size()), true); }

  bool takeOther(InputStream& stream) {
    const char first = stream.Peek();
    if (stream.takeLiteral()) {
      return first == 'n' ? document.Null() : document.Bool(first == 't');
    }
    const std::size_t length = takeShortNumber(stream.peekText(), document);
    stream.skip(length);
    return length > 0 || takeHard(stream);
  }

  void start(char end) { end == '}' ? document.StartObject() : document.StartArray(); }
  void end(char end, SizeType count) { end == '}' ? document.EndObject(count) : document.EndArray(count); }
};

/// Content that is passed over.
struct PassedContent : Content {
  static void text(std::string_view /*text*/) {}

  bool takeOther(InputStream& stream) { return stream.takeNumber() || stream.takeLiteral() || takeHard(stream); }

  static void start(char /*end*/) {}
  static void end(char /*end*/, SizeType /*count*/) {}
};

}  // namespace

bool ProjectingHandler::parse() {
  // A scalar that is parsed meanwhile would clear the stack of this reader.
  decltype(scalarReader_) reader;
  if (reader.Parse<rapidjson::kParseStopWhenDoneFlag>(stream_, *this).IsError()) {
    return false;
  }
  stream_.skipBlanks();
  return stream_.isAtEnd();
}

bool ProjectingHandler::parseScalar(InputStream& stream) {
  return !scalarReader_.Parse<rapidjson::kParseStopWhenDoneFlag>(stream, *this).IsError();
}

void ProjectingHandler::takeText(std::string_view text, bool isName) {
  const auto add = [&] { return document_.String(text.data(), static_cast<SizeType>(text.size()), true); };
  if (!isName) {
    takeScalar(add);
  } else if (chooseMember(text)) {
    add();
  }
}

bool ProjectingHandler::countNext() {
  if (next_ && !open_.empty()) {
    ++open_.back().kept;
  }
  return next_.has_value();
}

[[gnu::noinline]] bool ProjectingHandler::start(char end) {
  KeptContent kept{{*this}, document_};
  const bool isKept = countNext();
  if (isKept) {
    kept.start(end);
    const auto elements = projection_.elements(*next_);
    if (!projection_.keepsWhole(*next_) && (end == '}' ? projection_.keepsMembers(*next_) : elements.has_value())) {
      open_.push_back({*next_, ++opened_});
      next_ = elements;
      return true;
    }
  }
  mode_ = isKept && projection_.keepsWhole(*next_) ? Mode::whole : Mode::passing;
  PassedContent passed{{*this}};
  const auto count = mode_ == Mode::whole ? takeContent(stream_, end, kept) : takeContent(stream_, end, passed);
  if (count && isKept) {
    kept.end(end, mode_ == Mode::whole ? *count : 0);
  }
  return count.has_value();
}

bool ProjectingHandler::end(char end) {
  if (mode_ != Mode::choosing) {
    mode_ = Mode::choosing;
    return true;
  }
  KeptContent{{*this}, document_}.end(end, open_.back().kept);
  open_.pop_back();
  if (!open_.empty()) {
    next_ = projection_.elements(open_.back().place);
  }
  return true;
}

bool ProjectingHandler::chooseMember(std::string_view name) {
  next_ = projection_.member(open_.back().place, name);
  if (next_ && keptIn_[*next_] == open_.back().number && !projection_.isOfMany(*next_)) {
    // A second member of the same name.
    next_.reset();
  }
  if (next_) {
    keptIn_[*next_] = open_.back().number;
  }
  return next_.has_value();
}

}  // namespace kovalt
