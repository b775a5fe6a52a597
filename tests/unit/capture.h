#pragma once

// What a call inside the test's own process prints.

#include <gtest/gtest.h>

#include <string>

namespace kovalt::test {

/// The bytes of both standard streams.
struct Printed {
  std::string output;
  std::string errors;
};

/// Runs `function` and gathers what it prints.
template <typename Function>
Printed capture(Function&& function) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  function();
  Printed printed;
  printed.output = testing::internal::GetCapturedStdout();
  printed.errors = testing::internal::GetCapturedStderr();
  return printed;
}

}  // namespace kovalt::test
