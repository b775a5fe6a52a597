#include "completion/key_path_projection.h"

#include <algorithm>
#include <optional>

#include "completion/starts_with.h"
#include "json/path/key_path.h"

namespace kovalt {
namespace {

using Place = Projection::Place;

/// Adds the parts of the values at `place` that `hasNextStep` reads.
void addNextSteps(Projection& projection, Place place, KeyPathUse use) {
  projection.addMembers(place, "");
  if (use.selects) {
    projection.addSelecting(projection.addMembers(projection.addElements(place), ""));
  }
}

}  // namespace

void addCandidates(Projection& projection, Place from, std::string_view word, KeyPathUse use) {
  const KeyPath path(word);
  const std::string_view typed = word.substr(word.rfind(KeyPath::kStepSeparator) + 1);
  const std::size_t parents = std::max<std::size_t>(path.steps().size(), 1) - 1;
  Place place = from;
  for (std::size_t i = 0; i < parents; ++i) {
    const std::string_view step = path.steps()[i];
    place = use.selects ? projection.addStep(step, place) : projection.addMember(place, step);
  }

  addNextSteps(projection, projection.addMembers(place, typed), use);
  if (use.selects && parents > 0) {
    // If the previous step is a selection, `addStep` has added its key by name, so that member has a place of its own,
    // not the one that `addMembers` returned.
    const std::optional<SelectionStep> selection = asSelectionStep(path.steps()[parents - 1]);
    if (selection && startsWith(selection->refKey, typed)) {
      addNextSteps(projection, projection.addMember(place, selection->refKey), use);
    }
  }
  if (use.selects) {
    const Place elements = projection.addElements(place);
    const std::optional<SelectionStep> typedSelection = asSelectionStep(typed);
    projection.addSelecting(typedSelection ? projection.addMember(elements, typedSelection->refKey)
                                           : projection.addMembers(elements, typed));
  }
}

}  // namespace kovalt
