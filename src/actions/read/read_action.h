#pragma once

// The read of one value, and the common base of all reads.

#include <memory>
#include <string>
#include <vector>

#include "json/document.h"
#include "json/load/projection.h"
#include "json/path/key_path.h"
#include "json/path/resolve_key_path.h"

namespace kovalt {

/// Reads the value that its key path names.
class ReadAction : public KeyPath {
 public:
  using KeyPath::KeyPath;

  /// Walks the key path from `value` and puts the compact text of the value that it names into `text`, which must be
  /// empty. A string loses its outer quotes but keeps its escapes. Returns false with `text` still empty if there is no
  /// such value, which is reported on standard error. `lookups` may be shared by all reads from the same document.
  virtual bool execute(const Value& value, std::string& text, Lookups& lookups) const;

  /// Adds what `execute` looks at when it walks from a value at `from`: the whole value at the end of the path, or only
  /// the fields of its elements if there are fields.
  void addTo(Projection& projection, Projection::Place from) const;

 protected:
  /// If there are any, the read looks at nothing but these fields of each element of an array.
  std::vector<std::unique_ptr<ReadAction>> elementFields;
};

}  // namespace kovalt
