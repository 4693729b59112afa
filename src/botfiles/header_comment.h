#ifndef FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
#define FRAGSMITH_BOTFILES_HEADER_COMMENT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "model/bot.h"

namespace fragsmith {

/// Who made the bot, as the settings know it; 8-bit texts, each may be empty.
struct Author {
  std::string name;
  std::string email;
  std::string web_page;
};

/// The seven comment lines at the top of every bot file. Without a name the
/// author's other data are left out too.
std::string HeaderComment(const Bot& bot, const Author& author);

/// Number of lines that a header of ours takes at the top of the file, 0
/// without one.
std::size_t HeaderLineCount(std::string_view bytes);

/// The line about the author in a header of ours; empty where there is none.
std::string AuthorLine(std::string_view bytes);
std::string AuthorLine(const Author& author);

/// True for a file with a header of ours that has a version other than 0.0 or a
/// comment. No reader takes these back, which its user should know.
bool HeaderSaysMore(std::string_view bytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
