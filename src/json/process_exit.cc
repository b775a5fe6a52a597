#include "json/process_exit.h"

#include <cstdlib>

namespace kovalt {

void exitWithFailure() { std::exit(EXIT_FAILURE); }

void abortProcess() { std::abort(); }

}  // namespace kovalt
