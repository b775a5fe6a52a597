#pragma once

// Contracts of pointer and index code.

#include <cstdlib>

namespace kovalt {

/// Whether this build checks contracts. Builds with sanitizers do; other optimised builds generate no code for them.
#ifdef KOVALT_CHECK_CONTRACTS
inline constexpr bool kChecksContracts = true;
#else
inline constexpr bool kChecksContracts = false;
#endif

/// Checks a documented precondition or postcondition: aborts if `holds` is false and this build checks contracts.
inline void require(bool holds) {
  if (kChecksContracts && !holds) {
    std::abort();
  }
}

}  // namespace kovalt
