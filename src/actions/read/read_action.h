#pragma once

// The reading of one value, which is also the first step of every other read.

#include <string>
#include <string_view>

#include "json/document.h"
#include "json/key_path.h"
#include "json/projection.h"
#include "json/resolve_key_path.h"

namespace kovalt {

/// Reads the value that its key path names.
class ReadAction : public KeyPath {
 public:
  using KeyPath::KeyPath;

  /// Puts the compact text of the value, walked from `value`, into `text`, which must be empty; a string goes without
  /// its outer quotes, but keeps its escapes. Returns false with `text` still empty where there is no such value, which
  /// has been reported on standard error.
  ///
  /// `lookups` are those of all reads from the same document.
  virtual bool execute(const Value& value, std::string& text, Lookups& lookups) const;

  /// Keeps what a read of the whole value looks at, walked from a value at `from`.
  void keepValue(Projection& projection, Projection::Place from) const;
};

}  // namespace kovalt
