#include "json/load/projection.h"

namespace kovalt {

Projection::Place Projection::addWalk(const KeyPath& path, Place from) {
  Place place = from;
  for (const std::string_view step : path.steps()) {
    place = addStep(step, place);
  }
  return place;
}

Projection::Place Projection::addStep(std::string_view step, Place from) {
  const std::optional<SelectionStep> selection = asSelectionStep(step);
  if (!selection) {
    return addMember(from, step);
  }
  const Place element = addElements(from);
  addSelecting(addMember(element, selection->refKey));
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

Projection::Place Projection::addMembers(Place object, std::string_view prefix) {
  const Place added = addPlace();
  places_[added].ofMany = true;
  places_[object].manyMembers = added;
  places_[object].manyMembersPrefix = prefix;
  return added;
}

Projection::Place Projection::addElements(Place array) {
  if (!places_[array].elements) {
    const Place added = addPlace();
    places_[array].elements = added;
  }
  return *places_[array].elements;
}

void Projection::addSelecting(Place place) {
  addScalar(place);
  addScalar(addElements(place));
}

std::optional<Projection::Place> Projection::member(Place object, std::string_view name) const {
  const Kept& kept = places_[object];
  const auto found = kept.members.find(name);
  if (found != kept.members.end()) {
    return found->second;
  }
  const std::string_view prefix = kept.manyMembersPrefix;
  return name.substr(0, prefix.size()) == prefix ? kept.manyMembers : std::nullopt;
}

Projection::Place Projection::addPlace() {
  places_.emplace_back();
  return places_.size() - 1;
}

}  // namespace kovalt
