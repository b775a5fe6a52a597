#pragma once

// What the reads of a call can look at in a document, so that a load need not keep anything else.

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "json/key_path.h"

namespace kovalt {

/// Tells for each place of a document how much of a value there is kept. Of members with the same name the first is
/// meant. Of a value that is not kept, its kind is, which every walk looks at: an array or an object stands there
/// without its content, and null for all others. Members that are not named are not kept at all.
class Projection {
 public:
  /// A place that walks come to. All elements of an array are at the same one.
  using Place = std::size_t;

  /// The place of the root.
  static constexpr Place kRoot = 0;

  /// Adds what the walk of `path` looks at before it comes to its end. Returns that place.
  Place addWalk(const KeyPath& path, Place from);

  /// Adds what one step of a walk looks at. Returns the place that it comes to.
  Place addStep(std::string_view step, Place from);

  /// Adds the member `name` of an object at `object`. Returns its place.
  Place addMember(Place object, std::string_view name);

  /// Adds all members of an object at `object` whose names begin with `start`, also those with the same name. They are
  /// at one place, but for those that are added by name. To be called once for an object. Returns that place.
  Place addMembers(Place object, std::string_view start);

  /// Adds the elements of an array at `array`. Returns their place.
  Place addElements(Place array);

  /// Keeps a value at `place` if it holds no others.
  void addScalar(Place place) { places_[place].scalar = true; }

  /// Keeps all of a value at `place`.
  void addWhole(Place place) { places_[place].whole = true; }

  /// How many places there are.
  [[nodiscard]] std::size_t size() const { return places_.size(); }

  /// Whether all of a value at `place` is kept.
  [[nodiscard]] bool keepsWhole(Place place) const { return places_[place].whole; }

  /// Whether a value at `place` is kept that holds no others.
  [[nodiscard]] bool keepsScalar(Place place) const { return places_[place].scalar || places_[place].whole; }

  /// Whether any member of an object at `place` is kept.
  [[nodiscard]] bool keepsMembers(Place place) const {
    return !places_[place].members.empty() || places_[place].manyMembers;
  }

  /// The place of the member `name` of an object at `object`; none if it is not kept.
  [[nodiscard]] std::optional<Place> member(Place object, std::string_view name) const;

  /// Whether `place` is that of many members of one object.
  [[nodiscard]] bool isOfMany(Place place) const { return places_[place].ofMany; }

  /// The place of the elements of an array at `array`; none if they are not kept.
  [[nodiscard]] std::optional<Place> elements(Place array) const;

 private:
  struct Kept {
    bool whole = false;
    bool scalar = false;
    bool ofMany = false;
    std::optional<Place> elements;
    std::map<std::string, Place, std::less<>> members;
    std::optional<Place> manyMembers;
    std::string manyMembersStart;  ///< What their names begin with.
  };

  Place addPlace();

  std::vector<Kept> places_ = std::vector<Kept>(1);
};

}  // namespace kovalt
