#pragma once

// Contracts of pointer and index code.

#include <cstdlib>

namespace kovalt {

/// Whether this build checks contracts. Builds with sanitizers do; others generate no code for them.
#ifdef KOVALT_CHECK_CONTRACTS
inline constexpr bool kChecksContracts = true;
#else
inline constexpr bool kChecksContracts = false;
#endif

/// States what a documented precondition or postcondition says. Aborts where `holds` is false and contracts are
/// checked.
inline void require(bool holds) {
  if (kChecksContracts && !holds) {
    std::abort();
  }
}

}  // namespace kovalt
