#pragma once

// The merge of one object into another, by which files are merged and missing keys are created.

#include "actions/edit/edited_document.h"

namespace kovalt {

/// Moves the members of `source` into `target`, both objects whose values belong to the pool of `document`, and leaves
/// emptied members in `source`. A name that `target` does not have is appended; arrays are concatenated, objects
/// merged, scalars of the same type replaced. If `target` has several members with that name, the first is changed.
/// Members of `source` with the same name are merged one after the other.
///
/// Two values of different types (true and false are two types) are reported on standard error, and the process exits
/// with status 1. If `source` is not an object, or if `target` is not one and `source` has a member, an assertion of
/// RapidJSON aborts the process.
void mergeValue(Value& target, Value& source, EditedDocument& document);

}  // namespace kovalt
