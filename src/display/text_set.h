// The text set shared by every bitmap font: " 1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ.,?!:-()%Š+&/ ".
// A character's cell is its position in the set, from 1, less 2, found
// without regard to case. A blank gives -1 and a character outside the set
// gives -2: neither draws anything. Strings are UTF-8, so "Š" (the credit
// sign) is one character.
#pragma once

#include <cstddef>
#include <string_view>

namespace lf {

// Reads the code point that starts at byte i of s and moves i past it. A
// malformed byte reads as itself (a single byte), which lies outside the set.
char32_t NextCodePoint(std::string_view s, std::size_t& i);

// Characters (code points) in s.
int CodePointCount(std::string_view s);

// The first code point of s, or 0 for an empty string.
char32_t FirstCodePoint(std::string_view s);

// The font cell of a character: 0..48 inside the set, -1 for a blank, -2 outside.
int TextCell(char32_t c);

// Walks the characters of s in order: f(k, cell) with k counted from 1.
template <class F>
void ForEachCell(std::string_view s, F&& f) {
  std::size_t i = 0;
  int k = 0;
  while (i < s.size()) f(++k, TextCell(NextCodePoint(s, i)));
}

}  // namespace lf
