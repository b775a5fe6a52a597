#include "example_file.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kovalt::test {

std::string projectFile(const std::string& path) {
  const char* replacement = std::getenv("KOVALT_TEST_PROJECT");
  const std::string place = std::string(replacement == nullptr ? KOVALT_PROJECT : replacement) + "/" + path;
  std::ifstream file(place, std::ios::binary);
  if (!file) {
    throw std::runtime_error("cannot read " + place);
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string exampleFile(const std::string& name) { return projectFile("examples/" + name); }

}  // namespace kovalt::test
