#include "fuzz/early_exits.h"

#include <string>

#include "fuzz/property.h"
#include "json/process_exit.h"

namespace kovalt {

// These definitions replace those of the tool.

void exitWithFailure() { throw fuzz::EarlyExit{fuzz::Exit::typeClash}; }

void abortProcess() { throw fuzz::EarlyExit{fuzz::Exit::skippedStep}; }

}  // namespace kovalt

namespace kovalt::fuzz {

void throwForAssertion(const char* condition) {
  expect(condition == std::string("IsObject()"), std::string("the assertion ") + condition);
  throw EarlyExit{Exit::notAnObject};
}

}  // namespace kovalt::fuzz
