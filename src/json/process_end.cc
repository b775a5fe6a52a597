#include "json/process_end.h"

#include <cstdlib>

namespace kovalt {

void endWithFailure() { std::exit(EXIT_FAILURE); }

void endAbnormally() { std::abort(); }

}  // namespace kovalt
