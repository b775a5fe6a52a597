#pragma once

// The flat forms of an array, for shell scripts, and the operations on its compact text that make them. The operations
// do not interpret escapes inside strings.

#include <string>

#include "actions/read/read_action.h"

namespace kovalt {

/// Whether `text` begins with "[" and ends with "]".
bool isArrayText(const std::string& text);

/// Removes the first and the last byte of `text`, which must be an array text.
void stripBrackets(std::string& text);

/// Replaces every comma outside double quotes by a space. Every double quote, even an escaped one, opens or closes a
/// quoted part. If there is a quote at all, the last byte is not examined: it cannot be a separator.
void commasToSpaces(std::string& text);

/// Deletes every double quote, even escaped ones, whose backslashes stay.
void removeQuotes(std::string& text);

/// What separates the elements of a flat array.
enum class ElementSeparator { comma, space };

/// Whether the strings of a flat array keep their double quotes.
enum class StringQuotes { kept, removed };

/// Removes the outer brackets of an array text and applies the two choices to it. Any other text stays as it is.
void flattenArrayText(std::string& text, ElementSeparator separator, StringQuotes quotes);

/// Reads an array in a flat form. A value whose text is not in brackets is read as by ReadAction. Returns and reports
/// what ReadAction::execute does.
template <ElementSeparator separator, StringQuotes quotes>
class ReadFlatArrayAction : public ReadAction {
 public:
  using ReadAction::ReadAction;

  bool execute(const Value& value, std::string& text, Lookups& lookups) const override {
    const bool found = ReadAction::execute(value, text, lookups);
    flattenArrayText(text, separator, quotes);
    return found;
  }
};

using ReadArrayCommaAction = ReadFlatArrayAction<ElementSeparator::comma, StringQuotes::kept>;
using ReadArrayCommaNoQuoteAction = ReadFlatArrayAction<ElementSeparator::comma, StringQuotes::removed>;
using ReadArraySpaceAction = ReadFlatArrayAction<ElementSeparator::space, StringQuotes::kept>;
using ReadArraySpaceNoQuoteAction = ReadFlatArrayAction<ElementSeparator::space, StringQuotes::removed>;

}  // namespace kovalt
