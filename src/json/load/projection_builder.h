#pragma once

// The parsing of values that a projection keeps in part.

#include <cstddef>
#include <optional>
#include <vector>

#include "json/contract.h"
#include "json/load/handlers.h"
#include "json/load/parse_value.h"
#include "json/load/projection.h"

namespace kovalt {

/// Adds to a document what a projection keeps of the value that is parsed, and validates the rest.
class ProjectionBuilder : public TokenHandler<ProjectionBuilder> {
 public:
  /// All three must outlive the builder.
  ProjectionBuilder(TokenReader& reader, const Projection& projection, Document& document)
      : TokenHandler(reader),
        projection_(projection),
        builder_(reader, document),
        validator_(reader),
        keptIn_(projection.size()) {}

  bool string(Scanner& scanner) { return other(scanner); }

  bool other(Scanner& scanner) {
    const char first = scanner.peek();
    const bool isContainer = first == '{' || first == '[';
    const bool isKept = next_ && (isContainer ? projection_.keepsWhole(*next_) : projection_.keepsScalar(*next_));
    if (next_) {
      countKept();
    }
    if (next_ && !isKept) {
      addEmpty(first);
    }
    return scanner.lendCursor(
        [&](InputBuffer& buffer) { return isKept ? parseValue(buffer, builder_) : parseValue(buffer, validator_); });
  }

  bool open(char bracket, rapidjson::SizeType /*outerCount*/) {
    if (!next_ || projection_.keepsWhole(*next_)) {
      return false;
    }
    const std::optional<Projection::Place> elements = projection_.elements(*next_);
    if (bracket == '{' ? !projection_.keepsMembers(*next_) : !elements) {
      return false;
    }
    countKept();
    open_.push_back({*next_, ++opened_});
    next_ = elements;
    return builder_.start(bracket);
  }

  /// Called only inside a container for which `open` returned true.
  rapidjson::SizeType close(char bracket, rapidjson::SizeType /*count*/) {
    require(!open_.empty());
    builder_.end(bracket, open_.back().kept);
    open_.pop_back();
    if (!open_.empty()) {
      next_ = projection_.elements(open_.back().place);
    }
    return 0;
  }

  /// Decides whether the member with this name is kept. Called only inside an object.
  bool String(const char* name, rapidjson::SizeType length, bool copy) {
    require(!open_.empty());
    const OpenContainer& object = open_.back();
    next_ = projection_.member(object.place, {name, length});
    if (next_ && keptIn_[*next_] == object.number && !projection_.isOfMany(*next_)) {
      // A second member of the same name is never looked at.
      next_.reset();
    }
    if (next_) {
      keptIn_[*next_] = object.number;
      builder_.String(name, length, copy);
    }
    return true;
  }

 private:
  /// An array or object with elements or members that the projection keeps.
  struct OpenContainer {
    Projection::Place place;
    std::size_t number;            ///< Among all such containers of the document.
    rapidjson::SizeType kept = 0;  ///< The number of elements or members kept so far.
  };

  void countKept() {
    if (!open_.empty()) {
      ++open_.back().kept;
    }
  }

  /// Adds an empty value of the kind that begins with `first`.
  void addEmpty(char first) {
    if (first == '{' || first == '[') {
      builder_.start(first);
      builder_.end(first == '{' ? '}' : ']', 0);
    } else {
      builder_.Null();
    }
  }

  const Projection& projection_;
  DocumentBuilder builder_;
  Validator validator_;
  std::optional<Projection::Place> next_ = Projection::kRoot;  ///< The place of the next value, if it has one.
  std::vector<OpenContainer> open_;
  std::size_t opened_ = 0;
  std::vector<std::size_t> keptIn_;  ///< By place: the number of the last object whose member there was kept.
};

}  // namespace kovalt
