#pragma once

// Hashes that the author of a file cannot predict.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kovalt {

/// Hashes texts by SipHash-1-3 with a secret key, so that nobody can write a file full of names with equal hashes,
/// which would make every lookup a scan.
class TextHash {
 public:
  /// Derives the key from its own address, on the stack or the heap, and from an address of the code, which the system
  /// randomises. In a program that is not position-independent, the address of the code is always the same.
  TextHash();

  /// For tests.
  TextHash(std::uint64_t key0, std::uint64_t key1) : key0_(key0), key1_(key1) {}

  std::size_t operator()(std::string_view text) const;

 private:
  std::uint64_t key0_;
  std::uint64_t key1_;
};

}  // namespace kovalt
