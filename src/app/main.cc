#include <cstdlib>

#include "app/parse_arguments.h"
#include "app/run.h"
#include "app/usage_text.h"
#include "json/standard_streams.h"

int main(int argumentCount, char* arguments[]) {
  kovalt::ToolContext context;
  if (argumentCount == 1) {
    kovalt::printLine(kovalt::kUsageText);
    return EXIT_SUCCESS;
  }
  const bool succeeded = kovalt::parseArguments(context, argumentCount, arguments) && kovalt::run(context);
  return succeeded ? EXIT_SUCCESS : EXIT_FAILURE;
}
