#pragma once

// The characters that stand for themselves in a JSON string.

#include <array>
#include <cstddef>
#include <cstdint>

namespace kovalt {

/// By its code, 1 for a character that stands for itself in a JSON string and 0 for one that has to be escaped.
constexpr std::array<std::uint8_t, 256> makeUnescapedTable() {
  std::array<std::uint8_t, 256> table{};
  for (std::size_t code = ' '; code < table.size(); ++code) {
    table[code] = code != '"' && code != '\\' ? 1 : 0;
  }
  return table;
}

inline constexpr std::array<std::uint8_t, 256> kUnescapedTable = makeUnescapedTable();

/// 1 if `character` stands for itself in a JSON string, otherwise 0.
inline std::uint8_t unescaped(char character) { return kUnescapedTable[static_cast<unsigned char>(character)]; }

/// Whether all of the four characters at `text` stand for themselves. Always looks at all of them, so that a processor
/// has one branch to foresee instead of four.
inline bool fourUnescaped(const char* text) {
  return (unescaped(text[0]) & unescaped(text[1]) & unescaped(text[2]) & unescaped(text[3])) != 0;
}

}  // namespace kovalt
