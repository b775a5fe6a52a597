#pragma once

// The way from the bytes of a file to a document.

#include "json/document.h"
#include "json/projection.h"
#include "json/tuning/input_stream.h"

namespace kovalt {

/// Hands to `document`, as RapidJSON's reader does, what `projection` keeps of the value in `stream`. The rest is only
/// checked. Returns whether the stream held exactly one JSON value. It fails at a number that became infinite: the
/// reader lets some pass, and the writers could not write them.
bool parseProjected(InputStream& stream, const Projection& projection, Document& document);

}  // namespace kovalt
