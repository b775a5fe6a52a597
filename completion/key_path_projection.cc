#include "completion/key_path_projection.h"

#include "completion/starts_with.h"
#include "json/path/key_path.h"

namespace kovalt {
namespace {

using Place = Projection::Place;

/// Adds what tells by which values the members at `member` select.
void addSelecting(Projection& projection, Place member) {
  projection.addScalar(member);
  projection.addScalar(projection.addElements(member));
}

/// Adds what tells whether any step goes on from a value at `place`.
void addGoingOn(Projection& projection, Place place, KeyPathUse use) {
  projection.addMembers(place, "");
  if (use.selects) {
    addSelecting(projection, projection.addMembers(projection.addElements(place), ""));
  }
}

}  // namespace

void addCandidates(Projection& projection, Place from, std::string_view word, KeyPathUse use) {
  const KeyPath path(word);
  const std::string_view typed = word.substr(word.rfind(KeyPath::kStepSeparator) + 1);
  Place place = from;
  std::string_view selectedBy;
  bool isSelected = false;
  for (std::size_t i = 0; i + 1 < path.steps().size(); ++i) {
    const std::string_view step = path.steps()[i];
    const std::size_t equals = step.find('=');
    isSelected = use.selects && equals != std::string_view::npos;
    selectedBy = step.substr(0, equals);
    place = use.selects ? projection.addStep(step, place) : projection.addMember(place, step);
  }

  addGoingOn(projection, projection.addMembers(place, typed), use);
  if (isSelected && startsWith(selectedBy, typed)) {
    addGoingOn(projection, projection.addMember(place, selectedBy), use);
  }
  if (use.selects) {
    const Place elements = projection.addElements(place);
    const std::size_t equals = typed.find('=');
    addSelecting(projection, equals == std::string_view::npos
                                 ? projection.addMembers(elements, typed)
                                 : projection.addMember(elements, typed.substr(0, equals)));
  }
}

}  // namespace kovalt
