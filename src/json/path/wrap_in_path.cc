#include "json/path/wrap_in_path.h"

#include <utility>

namespace kovalt {

Value wrapInPath(const KeyPath& path, Value leaf, Allocator& allocator) {
  Value wrapped = std::move(leaf);
  for (auto step = path.steps().rbegin(); step != path.steps().rend(); ++step) {
    Value object(rapidjson::kObjectType);
    object.AddMember(copyText(*step, allocator), wrapped, allocator);
    wrapped = std::move(object);
  }
  return wrapped;
}

}  // namespace kovalt
