#include "actions/read/read_array_actions.h"

#include "actions/read/array_text.h"

namespace kovalt {

bool ReadArrayCommaAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const bool found = ReadAction::execute(value, text, lookups);
  flattenArrayText(text, ElementSeparator::comma, StringQuotes::kept);
  return found;
}

bool ReadArrayCommaNoQuoteAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const bool found = ReadAction::execute(value, text, lookups);
  flattenArrayText(text, ElementSeparator::comma, StringQuotes::removed);
  return found;
}

bool ReadArraySpaceAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const bool found = ReadAction::execute(value, text, lookups);
  flattenArrayText(text, ElementSeparator::space, StringQuotes::kept);
  return found;
}

bool ReadArraySpaceNoQuoteAction::execute(const Value& value, std::string& text, Lookups& lookups) const {
  const bool found = ReadAction::execute(value, text, lookups);
  flattenArrayText(text, ElementSeparator::space, StringQuotes::removed);
  return found;
}

}  // namespace kovalt
