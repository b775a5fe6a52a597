#pragma once

// Look-up of an object's member by name.

#include <string_view>

#include "json/document.h"

namespace kovalt {

/// The value of the first member of `value` whose name has exactly the bytes of `name`; nullptr where there is none or
/// `value` is not an object. The result belongs to the document and is valid until the object changes.
const Value* findMember(const Value& value, std::string_view name);
Value* findMember(Value& value, std::string_view name);

}  // namespace kovalt
