#include "json/value_to_text.h"

#include "json/write_value.h"

namespace kovalt {

std::string valueToText(const Value& value, bool pretty) {
  TextBuffer buffer;
  writeText(value, pretty ? TextLayout::screenIndented : TextLayout::compact, buffer);
  return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace kovalt
