#include "json/wrap_in_path.h"

#include <utility>

namespace kovalt {

Value wrapInPath(const KeyPath& path, Value leaf, Allocator& allocator) {
  Value wrapped = std::move(leaf);
  for (auto step = path.steps().rbegin(); step != path.steps().rend(); ++step) {
    Value name(step->data(), static_cast<rapidjson::SizeType>(step->size()), allocator);
    Value object(rapidjson::kObjectType);
    object.AddMember(name, wrapped, allocator);
    wrapped = std::move(object);
  }
  return wrapped;
}

}  // namespace kovalt
