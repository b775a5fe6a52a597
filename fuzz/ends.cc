#include "fuzz/ends.h"

#include <cstdlib>
#include <string>

#include "fuzz/property.h"

namespace kovalt::fuzz {

void throwForExit(int status) {
  expect(status == EXIT_FAILURE, "a process that ends early has status 1");
  throw EarlyEnd{End::typeClash};
}

void throwForAbort() { throw EarlyEnd{End::skippedStep}; }

void throwForAssertion(const char* condition) {
  expect(condition == std::string("IsObject()"), std::string("the assertion ") + condition);
  throw EarlyEnd{End::noObject};
}

}  // namespace kovalt::fuzz
