#include "json/projection.h"

namespace kovalt {

Projection::Place Projection::addWalk(const KeyPath& path, Place from) {
  Place place = from;
  for (const std::string_view step : path.steps()) {
    const std::size_t equals = step.find('=');
    if (equals == std::string_view::npos) {
      place = addMember(place, step);
      continue;
    }
    // A selection compares the member itself, or the items of an array there; the rest of the path is the element's.
    place = addElements(place);
    const Place selecting = addMember(place, step.substr(0, equals));
    places_[selecting].scalar = true;
    places_[addElements(selecting)].scalar = true;
  }
  return place;
}

Projection::Place Projection::addElements(Place array) {
  if (!places_[array].elements) {
    const Place added = addPlace();
    places_[array].elements = added;
  }
  return *places_[array].elements;
}

std::optional<Projection::Place> Projection::member(Place object, std::string_view name) const {
  const auto& members = places_[object].members;
  const auto found = members.find(name);
  return found == members.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Projection::Place> Projection::elements(Place array) const { return places_[array].elements; }

Projection::Place Projection::addPlace() {
  places_.emplace_back();
  return places_.size() - 1;
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

}  // namespace kovalt
