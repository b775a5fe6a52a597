#pragma once

// The merge of one object into another, by which files are merged and missing keys are made.

#include "json/document.h"
#include "json/member_finder.h"

namespace kovalt {

/// Moves the members of `source` into `target`, both objects whose values belong to `allocator`, and leaves emptied
/// members in `source`. A name that `target` does not have is appended; arrays are concatenated, objects merged,
/// scalars of the same type replaced. The first member of a name counts.
///
/// Two values of different types (true and false are two types) are reported on standard error, and the process ends at
/// once with status 1. A `source` that is no object ends it through RapidJSON's assertion, and so does a `target`
/// that is none when it meets a member. `members` serves the document of both.
void mergeValue(Value& target, Value& source, Allocator& allocator, MemberFinder& members);

}  // namespace kovalt
