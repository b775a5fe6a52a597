#include "json/projection.h"

namespace kovalt {

Projection::Place Projection::addWalk(const KeyPath& path, Place from) {
  Place place = from;
  for (const std::string_view step : path.steps()) {
    place = addStep(step, place);
  }
  return place;
}

Projection::Place Projection::addStep(std::string_view step, Place from) {
  const std::size_t equals = step.find('=');
  if (equals == std::string_view::npos) {
    return addMember(from, step);
  }
  // A selection compares the member itself, or the items of an array there; the rest of the path is the element's.
  const Place element = addElements(from);
  const Place selecting = addMember(element, step.substr(0, equals));
  addScalar(selecting);
  addScalar(addElements(selecting));
  return element;
}

Projection::Place Projection::addMember(Place object, std::string_view name) {
  const auto found = places_[object].members.find(name);
  if (found != places_[object].members.end()) {
    return found->second;
  }
  const Place added = addPlace();
  places_[object].members.emplace(name, added);
  return added;
}

Projection::Place Projection::addMembers(Place object, std::string_view start) {
  const Place added = addPlace();
  places_[added].ofMany = true;
  places_[object].manyMembers = added;
  places_[object].manyMembersStart = start;
  return added;
}

Projection::Place Projection::addElements(Place array) {
  if (!places_[array].elements) {
    const Place added = addPlace();
    places_[array].elements = added;
  }
  return *places_[array].elements;
}

std::optional<Projection::Place> Projection::member(Place object, std::string_view name) const {
  const Kept& kept = places_[object];
  const auto found = kept.members.find(name);
  if (found != kept.members.end()) {
    return found->second;
  }
  const std::string_view start = kept.manyMembersStart;
  return name.substr(0, start.size()) == start ? kept.manyMembers : std::nullopt;
}

std::optional<Projection::Place> Projection::elements(Place array) const { return places_[array].elements; }

Projection::Place Projection::addPlace() {
  places_.emplace_back();
  return places_.size() - 1;
}

}  // namespace kovalt
