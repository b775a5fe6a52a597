#pragma once

// Texts as the arguments of a command line.

#include <string>
#include <vector>

namespace kovalt::test {

using Texts = std::vector<std::string>;

/// The texts as an argument vector. The pointers are valid as long as `texts`.
inline std::vector<const char*> pointersTo(const Texts& texts) {
  std::vector<const char*> pointers;
  pointers.reserve(texts.size());
  for (const std::string& text : texts) {
    pointers.push_back(text.c_str());
  }
  return pointers;
}

}  // namespace kovalt::test
