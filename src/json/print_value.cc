#include "json/print_value.h"

#include <rapidjson/filewritestream.h>

#include <cstdio>

#include "json/standard_streams.h"
#include "json/write_value.h"

namespace kovalt {

void printValue(const Value& value) {
  char buffer[65536];
  rapidjson::FileWriteStream stream(stdout, buffer, sizeof(buffer));
  writeText(value, TextLayout::screenIndented, stream);
  printLine("");
}

}  // namespace kovalt
