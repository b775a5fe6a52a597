#pragma once

// The part of a document that the reads of a call look at, so that a load need not keep the rest.

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "json/path/key_path.h"

namespace kovalt {

/// For each place of a document, which part of the values there is kept.
///
/// Members and elements that were not added are not kept. Of several members with the same name the first is kept,
/// except by `addMembers`, which keeps all. A value on the way that is not kept itself is replaced by an empty value of
/// its kind, because every walk checks the kind: an array or an object without content, or null for everything else.
class Projection {
 public:
  /// A place that walks reach. Valid only for the projection that returned it. All elements of an array are at the same
  /// place.
  using Place = std::size_t;

  /// The place of the root.
  static constexpr Place kRoot = 0;

  /// Adds what a walk along `path` from a value at `from` looks at before it reaches its end. Returns the place of the
  /// end.
  Place addWalk(const KeyPath& path, Place from);

  /// Adds what one step of a walk looks at. Returns the place that it reaches. Mirrors the walk in resolve_key_path.cc.
  Place addStep(std::string_view step, Place from);

  /// Adds the member `name` of an object at `object`. Returns its place.
  Place addMember(Place object, std::string_view name);

  /// Adds all members of an object at `object` whose names begin with `prefix`, also those with the same name. They are
  /// at one place, except for members that are added by name. Must not be called twice for a place. Returns the place
  /// of these members.
  Place addMembers(Place object, std::string_view prefix);

  /// Adds the elements of an array at `array`. Returns their place.
  Place addElements(Place array);

  /// Keeps a value at `place` if it is not an array or object.
  void addScalar(Place place) { places_[place].scalar = true; }

  /// Keeps what a selection by a value at `place` compares: a scalar, or the scalar items of an array.
  void addSelecting(Place place);

  /// Keeps all of a value at `place`.
  void addWhole(Place place) { places_[place].whole = true; }

  /// The number of places.
  [[nodiscard]] std::size_t size() const { return places_.size(); }

  /// Whether all of a value at `place` is kept.
  [[nodiscard]] bool keepsWhole(Place place) const { return places_[place].whole; }

  /// Whether a value at `place` that is not an array or object is kept.
  [[nodiscard]] bool keepsScalar(Place place) const { return places_[place].scalar || places_[place].whole; }

  /// Whether any member of an object at `place` is kept.
  [[nodiscard]] bool keepsMembers(Place place) const {
    return !places_[place].members.empty() || places_[place].manyMembers;
  }

  /// The place of the member `name` of an object at `object`; nothing if it is not kept.
  [[nodiscard]] std::optional<Place> member(Place object, std::string_view name) const;

  /// Whether `place` was returned by `addMembers`.
  [[nodiscard]] bool isOfMany(Place place) const { return places_[place].ofMany; }

  /// The place of the elements of an array at `array`; nothing if they are not kept.
  [[nodiscard]] std::optional<Place> elements(Place array) const { return places_[array].elements; }

 private:
  struct Kept {
    bool whole = false;
    bool scalar = false;
    bool ofMany = false;
    std::optional<Place> elements;
    std::map<std::string, Place, std::less<>> members;
    std::optional<Place> manyMembers;
    std::string manyMembersPrefix;
  };

  Place addPlace();

  std::vector<Kept> places_ = std::vector<Kept>(1);
};

}  // namespace kovalt
