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
/// that is none when it meets a member.
void mergeValue(Value& target, Value& source, Allocator& allocator);

/// As above, for one of many merges into the document of `members`: objects of a single member, as a chain along a key
/// path has them, are merged in a time that does not grow with `target`.
void mergeValue(Value& target, Value& source, Allocator& allocator, MemberFinder& members);

}  // namespace kovalt
