#include "actions/read/read_array_actions.h"

#include <algorithm>

namespace kovalt {

bool isArrayText(const std::string& text) { return !text.empty() && text.front() == '[' && text.back() == ']'; }

void stripBrackets(std::string& text) {
  text.pop_back();
  text.erase(0, 1);
}

void commasToSpaces(std::string& text) {
  if (text.find('"') == std::string::npos) {
    std::replace(text.begin(), text.end(), ',', ' ');
    return;
  }
  bool inQuotes = false;
  for (auto byte = text.begin(); byte != text.end() - 1; ++byte) {
    if (*byte == '"') {
      inQuotes = !inQuotes;
    } else if (*byte == ',' && !inQuotes) {
      *byte = ' ';
    }
  }
}

void removeQuotes(std::string& text) { text.erase(std::remove(text.begin(), text.end(), '"'), text.end()); }

void flattenArrayText(std::string& text, ElementSeparator separator, StringQuotes quotes) {
  if (!isArrayText(text)) {
    return;
  }
  stripBrackets(text);
  if (separator == ElementSeparator::space) {
    commasToSpaces(text);
  }
  if (quotes == StringQuotes::removed) {
    removeQuotes(text);
  }
}

}  // namespace kovalt
