#ifndef FRAGSMITH_BOTFILES_STANDARD_IDENTITY_H_
#define FRAGSMITH_BOTFILES_STANDARD_IDENTITY_H_

#include <set>
#include <string>

#include "model/bot.h"

namespace fragsmith {

/// Names of the bots that the game brings along, as far as no package has
/// replaced them.
using StandardBotNames = std::set<std::string, std::less<>>;

/// The identity of a bot without a description file: model Sarge, skin
/// Default, no fun name, no rail colour; for a standard bot (the name is
/// compared with its case) the looks, and for some the fun name and the arena
/// lord, that the game gives it.
void SetStandardIdentity(Bot& bot, const StandardBotNames& standard_bots);

/// Of the same table only what a description that was read left empty: the
/// fun name where the bot has none, and the arena lord where the file did not
/// speak of it.
void FillStandardIdentity(Bot& bot, bool has_arena_lord,
                          const StandardBotNames& standard_bots);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_STANDARD_IDENTITY_H_
