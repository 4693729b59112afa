#ifndef FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
#define FRAGSMITH_BOTFILES_HEADER_COMMENT_H_

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

/// True for a file with a header of ours that has a version other than 0.0 or a
/// comment. No reader takes these back, which its user should know.
bool HeaderSaysMore(std::string_view bytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
