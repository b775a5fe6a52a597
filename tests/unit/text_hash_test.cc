#include "json/text_hash.h"

#include <gtest/gtest.h>

#include <string>

namespace kovalt::test {
namespace {

/// The low 32 bits of a hash: std::size_t has no more on a 32-bit processor.
std::uint32_t hashOf(const std::string& text, std::uint64_t key0, std::uint64_t key1) {
  return static_cast<std::uint32_t>(TextHash(key0, key1)(text));
}

TEST(TextHash, IsSipHash) {
  // The published vector for the empty text; the others are from Python's SipHash-1-3.
  EXPECT_EQ(hashOf("", 0x0706050403020100, 0x0F0E0D0C0B0A0908), 0x050FC4DCU);
  EXPECT_EQ(hashOf("a", 0, 0), 0xB89B1813U);
  EXPECT_EQ(hashOf("1234567", 0, 0), 0x94FDAE81U);
  EXPECT_EQ(hashOf("12345678", 0, 0), 0x30560A87U);
  EXPECT_EQ(hashOf("123456789", 0, 0), 0x07965FCFU);
  EXPECT_EQ(hashOf("network.webSocketPort", 0, 0), 0xF28A882CU);
}

TEST(TextHash, DependsOnItsKey) {
  EXPECT_NE(hashOf("a", 0, 0), hashOf("a", 1, 0));
  EXPECT_NE(hashOf("a", 0, 0), hashOf("a", 0, 1));
}

TEST(TextHash, HasARandomKeyByDefault) {
  const TextHash first;
  const TextHash second;
  EXPECT_NE(first("a"), second("a"));
}

}  // namespace
}  // namespace kovalt::test
