#include "json/print_value.h"

#include <cstdio>

#include "json/standard_streams.h"
#include "json/write_value.h"

namespace kovalt {

void printValue(const Value& value) {
  OutputStream stream(stdout);
  writeText(value, TextLayout::screenIndented, stream);
  printLine("");
}

}  // namespace kovalt
