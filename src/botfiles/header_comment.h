#ifndef FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
#define FRAGSMITH_BOTFILES_HEADER_COMMENT_H_

#include <string>

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

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_HEADER_COMMENT_H_
