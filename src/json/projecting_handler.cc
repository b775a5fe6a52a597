#include "json/projecting_handler.h"

namespace kovalt {

bool ProjectingHandler::countNext() {
  if (next_ && !open_.empty()) {
    ++open_.back().kept;
  }
  return next_.has_value();
}

bool ProjectingHandler::chooseObject() {
  if (!countNext()) {
    enter(Mode::passing);
    return true;
  }
  document_.StartObject();
  if (projection_.keepsWhole(*next_)) {
    enter(Mode::whole);
  } else if (projection_.keepsMembers(*next_)) {
    open(*next_);
  } else {
    document_.EndObject(0);
    enter(Mode::passing);
  }
  return true;
}

bool ProjectingHandler::chooseArray() {
  if (!countNext()) {
    enter(Mode::passing);
    return true;
  }
  document_.StartArray();
  if (projection_.keepsWhole(*next_)) {
    enter(Mode::whole);
  } else if (projection_.elements(*next_)) {
    open(*next_);
    next_ = projection_.elements(*next_);
  } else {
    document_.EndArray(0);
    enter(Mode::passing);
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

void ProjectingHandler::open(Projection::Place place) { open_.push_back({place, ++opened_}); }

rapidjson::SizeType ProjectingHandler::close() {
  const rapidjson::SizeType kept = open_.back().kept;
  open_.pop_back();
  if (!open_.empty()) {
    next_ = projection_.elements(open_.back().place);
  }
  return kept;
}

}  // namespace kovalt
