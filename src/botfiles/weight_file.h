#ifndef FRAGSMITH_BOTFILES_WEIGHT_FILE_H_
#define FRAGSMITH_BOTFILES_WEIGHT_FILE_H_

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "botfiles/header_comment.h"
#include "botfiles/read_report.h"
#include "model/bot.h"

namespace fragsmith {

/// The two weight files: macros for the game's own weighting scripts, which
/// they include at their end.
std::string WriteWeaponWeightFile(const Bot& bot, const Author& author);
std::string WriteItemWeightFile(const Bot& bot, const Author& author);

/// What a game's own weight code asks a bot's file for, under names of its own.
struct GameMacroValues {
  std::string script;  ///< Included at the end.
  std::vector<std::pair<std::string, Value>> macros;
};

/// The same with these behind ours.
std::string WriteWeaponWeightFile(const Bot& bot, const Author& author,
                                  const GameMacroValues& game);
std::string WriteItemWeightFile(const Bot& bot, const Author& author,
                                const GameMacroValues& game);

/// Fill the bot's weapon weights (44 to 53) or item weights (54 to 80) from
/// the bytes of such a file. Both files name macros like W_SHOTGUN; which
/// parameter is meant follows from the file.
ReadReport ReadWeaponWeightFile(std::string_view bytes,
                                const std::string& file_name, Bot& bot);
ReadReport ReadItemWeightFile(std::string_view bytes,
                              const std::string& file_name, Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_WEIGHT_FILE_H_
