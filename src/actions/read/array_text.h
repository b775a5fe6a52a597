#pragma once

// Plain text operations on the compact text of an array. Escapes inside strings are not interpreted.

#include <string>

namespace kovalt {

/// Whether `text` begins with "[" and ends with "]".
bool isArrayText(const std::string& text);

/// Takes the first and the last byte off a text for which `isArrayText` holds.
void stripBrackets(std::string& text);

/// Overwrites every comma outside double quotes by a space. Every double quote, an escaped one too, opens or closes a
/// quoted part. Where there is a quote at all, the last byte stays as it is.
void commasToSpaces(std::string& text);

/// Deletes every double quote, escaped ones too; their backslashes stay.
void removeQuotes(std::string& text);

}  // namespace kovalt
