#ifndef FRAGSMITH_GAME_BOT_KINDS_H_
#define FRAGSMITH_GAME_BOT_KINDS_H_

#include <array>
#include <cstdint>
#include <string_view>

#include "game/word_lists.h"
#include "model/bot.h"

namespace fragsmith {

/// A new bot that plays in a way of its own from the start.
enum class BotKind { kSniper, kRusher, kCamper, kAllRounder, kSurprise };

inline constexpr std::array kBotKinds = {BotKind::kSniper, BotKind::kRusher,
                                         BotKind::kCamper, BotKind::kAllRounder,
                                         BotKind::kSurprise};

struct BotKindText {
  std::string_view key;  ///< "sniper", for the command line.
  // In English; Localized() shows them.
  std::string_view caption;  ///< "Sniper".
  std::string_view about;    ///< A sentence.
};

const BotKindText& TextOf(BotKind kind);

/// A bot of the kind: its skills rise from level 1 to 5, its weights suit the
/// distances at which the game's bots use each weapon, and it has a line for
/// each situation that is heard. The seed draws the lines and, of a surprise,
/// all the rest; the same one gives the same bot. Without the lists of a game
/// it speaks lines of ours.
Bot CreateBotOfKind(BotKind kind, std::uint32_t seed, const WordLists* words);

/// Large enough for a surprise, small enough to be told.
inline constexpr std::uint32_t kSeedCount = 1'000'000;

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_BOT_KINDS_H_
