#include "actions/read/read_array_actions.h"

#include "actions/read/array_text.h"

namespace kovalt {

bool ReadArrayCommaAction::execute(const Value& value, std::string& text) const {
  const bool found = ReadAction::execute(value, text);
  if (isArrayText(text)) {
    stripBrackets(text);
  }
  return found;
}

bool ReadArrayCommaNoQuoteAction::execute(const Value& value, std::string& text) const {
  const bool found = ReadAction::execute(value, text);
  if (isArrayText(text)) {
    stripBrackets(text);
    removeQuotes(text);
  }
  return found;
}

bool ReadArraySpaceAction::execute(const Value& value, std::string& text) const {
  const bool found = ReadAction::execute(value, text);
  if (isArrayText(text)) {
    stripBrackets(text);
    commasToSpaces(text);
  }
  return found;
}

bool ReadArraySpaceNoQuoteAction::execute(const Value& value, std::string& text) const {
  const bool found = ReadAction::execute(value, text);
  if (isArrayText(text)) {
    stripBrackets(text);
    commasToSpaces(text);
    removeQuotes(text);
  }
  return found;
}

}  // namespace kovalt
