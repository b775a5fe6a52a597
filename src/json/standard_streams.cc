#include "json/standard_streams.h"

#include <cstdio>
#include <string>

namespace kovalt {

void printLine(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

void reportLine(std::string_view text) {
  // Standard error is unbuffered: writing the line in one piece keeps it whole.
  std::string line(text);
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace kovalt
