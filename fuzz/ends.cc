#include "fuzz/ends.h"

#include <string>

#include "fuzz/property.h"
#include "json/process_exit.h"

namespace kovalt {

// In place of the functions that end the program.

void exitWithFailure() { throw fuzz::EarlyEnd{fuzz::End::typeClash}; }

void abortProcess() { throw fuzz::EarlyEnd{fuzz::End::skippedStep}; }

}  // namespace kovalt

namespace kovalt::fuzz {

void throwForAssertion(const char* condition) {
  expect(condition == std::string("IsObject()"), std::string("the assertion ") + condition);
  throw EarlyEnd{End::noObject};
}

}  // namespace kovalt::fuzz
