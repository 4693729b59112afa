#ifndef FRAGSMITH_INPLACE_SPLICE_H_
#define FRAGSMITH_INPLACE_SPLICE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "support/text.h"

namespace fragsmith {

/// Bytes that take the place of others. An empty span puts them in between.
struct Splice {
  TextSpan span;
  std::string text;
};

std::string_view TextAt(std::string_view bytes, TextSpan span);

/// The bytes with all splices made. They must not overlap; of those at one
/// place the order stays.
std::string Spliced(std::string_view bytes, std::vector<Splice> splices);

/// Comments of the game's files, as far as they are none inside quotes.
std::vector<TextSpan> CommentsIn(std::string_view bytes);

/// True where they have a byte in common.
bool Overlap(TextSpan left, TextSpan right);

/// The number of the line with the byte at the offset, from 1.
std::size_t LineNumberAt(std::string_view bytes, std::size_t offset);

/// The line with the byte at the offset: its text, and with its end.
struct LineOfFile {
  TextSpan text;
  TextSpan whole;
};
LineOfFile LineAround(std::string_view bytes, std::size_t offset);

/// Blanks and TABs at the beginning of the line.
std::string_view IndentOf(std::string_view bytes, const LineOfFile& line);

/// How lines end here: as the line itself, else as the file's first one.
std::string LineEndOf(std::string_view bytes, const LineOfFile& line);

/// Puts lines, given without their ends, behind or before a line.
Splice LinesBehind(std::string_view bytes, const LineOfFile& line,
                   const std::vector<std::string>& lines);
Splice LinesBefore(std::string_view bytes, const LineOfFile& line,
                   const std::vector<std::string>& lines);

/// Takes out what stands in the span, and its line where nothing is left.
Splice Removal(std::string_view bytes, TextSpan span);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_SPLICE_H_
