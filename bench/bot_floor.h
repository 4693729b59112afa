#ifndef FRAGSMITH_BENCH_BOT_FLOOR_H_
#define FRAGSMITH_BENCH_BOT_FLOOR_H_

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The least that reading and writing files can cost here: what any program
// has to do, with no look at what the bytes mean.

namespace fragsmith::bench {

/// Opens and reads the whole file; empty when that fails.
std::string ReadWhole(const std::filesystem::path& path);

/// The lines of the text, without their ends.
std::vector<std::string_view> SplitLines(std::string_view text);

/// The same lines by the means of the standard library: a file stream, and a
/// string for each line.
std::vector<std::string> ReadLines(const std::filesystem::path& path);

/// The words between blanks, quotation marks and signs, each with its number
/// where it is one: what has to be done before anything is understood.
struct PlainWord {
  std::string_view text;
  double number = 0;
};
std::vector<PlainWord> SplitWords(std::string_view text);

/// Writes the bytes to a new file beside the target, flushes it to the disk
/// and renames it over the target. False when a step fails.
bool WriteWhole(const std::filesystem::path& target, std::string_view bytes);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_BOT_FLOOR_H_
