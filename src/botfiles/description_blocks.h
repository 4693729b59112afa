#ifndef FRAGSMITH_BOTFILES_DESCRIPTION_BLOCKS_H_
#define FRAGSMITH_BOTFILES_DESCRIPTION_BLOCKS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fragsmith {

/// A key, in lower case, and the value behind it in a description.
struct DescriptionPair {
  std::string key;
  std::string text;  ///< Without quotes.
  std::size_t line = 0;
};

/// What stands between "{" and "}". A file may describe several bots so.
struct DescriptionBlock {
  std::size_t first_line = 0;
  std::size_t last_line = 0;
  std::vector<DescriptionPair> pairs;

  /// The value of a key; empty where there is none.
  std::string Text(std::string_view key) const;
};

struct DescriptionBlocks {
  std::vector<DescriptionBlock> blocks;
  std::vector<std::size_t> comment_lines;
};

/// The file as the game takes it apart, but for what it would refuse: pairs
/// that stand in no braces belong to the block before, or begin the first.
DescriptionBlocks ReadDescriptionBlocks(std::string_view bytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_DESCRIPTION_BLOCKS_H_
