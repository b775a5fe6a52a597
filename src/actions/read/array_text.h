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

/// What stands between the elements of a flat array.
enum class ElementSeparator { comma, space };

/// Whether the strings of a flat array stay in double quotes.
enum class StringQuotes { kept, removed };

/// Makes the text of an array flat: no outer brackets, and the rest as asked for. Any other text stays as it is.
void flattenArrayText(std::string& text, ElementSeparator separator, StringQuotes quotes);

}  // namespace kovalt
