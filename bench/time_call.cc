// Runs a command several times and writes a line for each run: the wall time and the processor time in seconds, and the
// peak memory in bytes. Small and static, because the kernel counts the memory of the starting process in
// the peak of the new one.
//   time_call REPORT RUNS COMMAND [ARGUMENT]...

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs the command and writes its line. Returns false if it cannot be run or does not exit with status 0.
bool runOnce(char* command[], std::FILE* report) {
  const auto start = std::chrono::steady_clock::now();
  pid_t process = 0;
  int status = 0;
  rusage usage{};
  if (posix_spawnp(&process, command[0], nullptr, nullptr, command, environ) != 0 ||
      wait4(process, &status, 0, &usage) != process) {
    return false;
  }
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  std::fprintf(report, "%.9f %.6f %ld\n", wall.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime),
               usage.ru_maxrss * 1024);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (argumentCount < 4) {
    return EXIT_FAILURE;
  }
  std::FILE* report = std::fopen(arguments[1], "w");
  if (report == nullptr) {
    return EXIT_FAILURE;
  }
  bool allRan = true;
  for (int run = static_cast<int>(std::strtol(arguments[2], nullptr, 10)); run > 0 && allRan; --run) {
    allRan = runOnce(arguments + 3, report);
  }
  return std::fclose(report) == 0 && allRan ? EXIT_SUCCESS : EXIT_FAILURE;
}
