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

/// Of the same table only the fun name and the arena lord, and only where
/// the bot has none.
void FillStandardIdentity(Bot& bot, const StandardBotNames& standard_bots);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_STANDARD_IDENTITY_H_
