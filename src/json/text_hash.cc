#include "json/text_hash.h"

#include "json/character_block.h"

namespace kovalt {
namespace {

std::uint64_t rotate(std::uint64_t word, int bits) { return word << bits | word >> (64 - bits); }

}  // namespace

TextHash::TextHash() : TextHash(reinterpret_cast<std::uintptr_t>(this), reinterpret_cast<std::uintptr_t>(&rotate)) {}

std::size_t TextHash::operator()(std::string_view text) const {
  std::uint64_t a = key0_ ^ 0x736F6D6570736575;
  std::uint64_t b = key1_ ^ 0x646F72616E646F6D;
  std::uint64_t c = key0_ ^ 0x6C7967656E657261;
  std::uint64_t d = key1_ ^ 0x7465646279746573;
  const auto mix = [&] {
    a += b;
    c += d;
    b = rotate(b, 13) ^ a;
    d = rotate(d, 16) ^ c;
    a = rotate(a, 32) + d;
    c += b;
    b = rotate(b, 17) ^ c;
    d = rotate(d, 21) ^ a;
    c = rotate(c, 32);
  };
  const auto add = [&](std::uint64_t word) {
    d ^= word;
    mix();
    a ^= word;
  };
  std::uint64_t last = static_cast<std::uint64_t>(text.size()) << 56;
  for (; text.size() >= WordBlock::kSize; text.remove_prefix(WordBlock::kSize)) {
    add(WordBlock::loadLittleEndian(text.data()));
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    last |= std::uint64_t{static_cast<unsigned char>(text[i])} << i * 8;
  }
  add(last);
  c ^= 0xFF;
  mix();
  mix();
  mix();
  return static_cast<std::size_t>(a ^ b ^ c ^ d);
}

}  // namespace kovalt
