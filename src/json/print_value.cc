#include "json/print_value.h"

#include "json/standard_streams.h"
#include "json/tuning/display_stream.h"
#include "json/write_value.h"

namespace kovalt {

void printValue(const Value& value) {
  DisplayStream stream;
  writeText(value, TextLayout::screenIndented, stream);
  printLine("");
}

}  // namespace kovalt
