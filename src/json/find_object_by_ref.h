#pragma once

// The selection of one object inside an array of objects, by the value of one of its members.

#include <string_view>

#include "json/document.h"

namespace kovalt {

/// The first object of `array` whose member `refKey` matches `refValue`, or nullptr. A boolean matches as the word true
/// or false, a number as the text that it is written with, a string by its bytes up to the first NUL, an array by any
/// of its numbers and strings.
///
/// Without a match, or where `array` is nullptr or no array, prints the not-found message on standard error; after it
/// the advice on the path argument if an element was no object, its member was null or an object, or an array without a
/// match held anything but numbers and strings.
const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue);

}  // namespace kovalt
