#pragma once

// The common start of the array additions.

#include <cstddef>

#include "json/document.h"

namespace kovalt {

/// Makes `target` an empty array with room for `size` elements; what it held is dropped.
inline void startArray(Value& target, std::size_t size, Allocator& allocator) {
  target.SetArray();
  target.Reserve(static_cast<rapidjson::SizeType>(size), allocator);
}

}  // namespace kovalt
