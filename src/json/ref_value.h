#pragma once

// Which values of a member can select the object that holds it, and by which text.

#include <string>

#include "json/document.h"

namespace kovalt {

/// Whether a member can select at all: booleans, numbers, strings and arrays can. A selection stops at an object whose
/// member is null or an object.
bool canSelect(const Value& member);

/// Whether an item of a member that is an array can select: numbers and strings can, others are passed over.
bool itemCanSelect(const Value& item);

/// The text that a boolean, a number or a string selects by: the word, the compact text, or the bytes up to the first
/// NUL.
std::string refValueOf(const Value& scalar);

}  // namespace kovalt
