#ifndef FRAGSMITH_CHAT_CHAT_CATALOGUE_H_
#define FRAGSMITH_CHAT_CHAT_CATALOGUE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/chat_type_id.h"
#include "support/random.h"

namespace fragsmith {

// The vocabulary of bot chat. Everything is identified by its 0-based index
// in these tables. Captions are shown as they stand, "Drows" included.

/// A situation in which a bot may speak.
struct ChatType {
  std::string_view Key;      ///< In the game's chat file.
  std::string_view Caption;  ///< For the user.
  int random_group;          ///< Group that random lines are drawn from.
  /// Pointer variables on offer, in the order in which they are tried.
  std::array<int, 5> pointers;
  std::size_t pointer_count;

  constexpr std::span<const int> Pointers() const {
    return {pointers.data(), pointer_count};
  }
};

/// A family of chat lines that the game brings along (its chat macros).
struct ChatGroup {
  std::string_view Name;     ///< The game's macro.
  std::string_view Caption;  ///< For the user.
  std::string_view Marker;   ///< Begins a member in editor form.
  std::int16_t MaxNumber;    ///< The highest member number.
  bool Unnumbered;           ///< Member 0 is the bare macro in the game.
};

/// A list of words of which the game speaks a random one.
struct WordList {
  std::string_view Key;       ///< In the game's chat file.
  std::string_view Caption;   ///< For the user.
  std::string_view Variable;  ///< In editor form.
};

/// A variable that the situation fills: the attacker, the weapon ...
struct ChatPointer {
  std::string_view Code;      ///< In the game's chat file, within a text.
  std::string_view Variable;  ///< In editor form.
  std::string_view button_caption;

  /// The game's number of the variable, the item inside the code.
  constexpr std::string_view Item() const {
    return Code.substr(3, Code.size() - 6);
  }
};

// kill_rail draws from DEATH_RAIL, hit_nodeath and kill_suicide from TAUNT
// and both random types from MISC: so the game's own bots are made.
inline constexpr std::array<ChatType, kChatTypeCount> kChatTypes = {{
    {"game_enter", "Game entry", 0, {0, 1, 2}, 3},
    {"game_exit", "Game exit", 1, {0, 1, 2}, 3},
    {"level_start", "Level starts", 2, {0, 1, 2}, 3},
    {"level_end", "Level ends", 3, {0, 1, 2, 3, 4}, 5},
    {"level_end_victory", "Level ends, bot wins", 4, {0, 1, 2, 3, 4}, 5},
    {"level_end_lose", "Level ends, bot loses", 5, {0, 1, 2, 3, 4}, 5},
    {"hit_talking", "Hit while talking", 6, {5, 7}, 2},
    {"hit_nodeath", "Hit, not dead", 25, {5, 7}, 2},
    {"hit_nokill", "Hit, no kill", 7, {6, 7}, 2},
    {"death_telefrag", "Telefragged", 8, {10}, 1},
    {"death_cratered", "Cratered", 9, {9}, 1},
    {"death_lava", "Death by lava", 10, {9}, 1},
    {"death_slime", "Death by slime", 11, {9}, 1},
    {"death_drown", "Drowned", 12, {9}, 1},
    {"death_suicide", "Suicide", 13, {9}, 1},
    {"death_gauntlet", "Pummeled", 14, {5, 7}, 2},
    {"death_rail", "Death by rail", 15, {5, 7}, 2},
    {"death_bfg", "Death by BFG", 16, {5, 7}, 2},
    {"death_insult", "Bot dies (negative)", 17, {5, 7}, 2},
    {"death_praise", "Bot dies (positive)", 19, {5, 7}, 2},
    {"kill_rail", "Kill by rail", 15, {6, 7}, 2},
    {"kill_gauntlet", "Pummel", 21, {6, 7}, 2},
    {"kill_telefrag", "Kill by telefrag", 22, {6, 7}, 2},
    {"kill_suicide", "Someone kills him/her/itself", 25, {6, 7}, 2},
    {"kill_insult", "Bot kills (negative)", 23, {6, 7}, 2},
    {"kill_praise", "Bot kills (positive)", 24, {6, 7}, 2},
    {"random_insult", "Random insult", 27, {9, 8}, 2},
    {"random_misc", "Random misc", 27, {9, 8}, 2},
}};

inline constexpr std::array<ChatGroup, 29> kChatGroups = {{
    {"HELLO", "Enters game", "{{GAMEENTER", 11, true},
    {"GOODBYE", "Exits game", "{{GAMEEXIT", 6, true},
    {"LEVEL_START", "Level starts", "{{LEVELSTART", 3, true},
    {"LEVEL_END", "Level ends", "{{LEVELEND", 4, false},
    {"LEVEL_END_VICTORY", "Bot wins level", "{{LEVELENDVICTORY", 4, false},
    {"LEVEL_END_LOSE", "Bot loses level", "{{LEVELENDLOSE", 2, false},
    {"DEATH_TALKING", "Hit while chatting", "{{HITTALKING", 0, true},
    {"HIT_NOKILL", "Hits, no kill", "{{HITNOKILL", 1, false},
    {"DEATH_TELEFRAGGED", "Dies in telefrag", "{{DEATHTELEFRAG", 3, false},
    {"DEATH_FALLING", "Cratered", "{{DEATHFALLING", 0, true},
    {"DEATH_LAVA", "Death in lava", "{{DEATHLAVA", 2, false},
    {"DEATH_SLIME", "Death in slime", "{{DEATHSLIME", 1, false},
    {"DEATH_DROWN", "Drows", "{{DEATHDROWN", 2, false},
    {"DEATH_SUICIDE", "Kills him/her/itself", "{{DEATHSUICIDE", 6, false},
    {"DEATH_GAUNTLET", "Pummeled", "{{DEATHGAUNTLET", 2, false},
    {"DEATH_RAIL", "Dies by railgun", "{{DEATHRAIL", 2, false},
    {"DEATH_BFG", "Death by BFG", "{{DEATHBFG", 3, false},
    {"DEATH_INSULT", "Dies (negative)", "{{DEATHINSULT", 6, false},
    {"DEATH_FEM_INSULT", "Dies (nagative fem)", "{{DEATHFEMINSULT", 2, true},
    {"D_PRAISE", "Dies (positive)", "{{DEATHPRAISE", 6, true},
    {"KILL_RAIL", "Kills with railgun", "{{KILLRAIL", 2, false},
    {"KILL_GAUNTLET", "Pummels", "{{KILLGAUNTLET", 2, false},
    {"TELEFRAGGED", "Telefrags someone", "{{KILLTELEFRAG", 7, false},
    {"KILL_INSULT", "Kills (negative)", "{{KILLINSULT", 39, false},
    {"PRAISE", "Kills (positive)", "{{KILLPRAISE", 5, true},
    {"TAUNT", "Taunt", "{{TAUNT", 9, true},
    {"TAUNT_FEM", "Feminine taunt", "{{TAUNTFEM", 8, true},
    {"MISC", "Misc", "{{MISC", 16, false},
    {"GUYTALK", "Guytalk", "{{GUYTALK", 2, true},
}};

/// GUYTALK has no member 1 in the game's data.
inline constexpr int kGuytalkGroup = 28;

// The variable of the professions has no braces: the plain word is one too.
inline constexpr std::array<WordList, 39> kWordLists = {{
    {"exclamation", "exclamation", "{EXCLAMATION}"},
    {"good", "good", "{GOOD}"},
    {"looser", "loser", "{LOSER}"},
    {"nerd", "nerd", "{NERD}"},
    {"boyz", "boyz", "{BOYZ}"},
    {"language", "language", "{LANGUAGE}"},
    {"weapon", "weapon", "{WEAPON}"},
    {"ponder", "ponder", "{PONDER}"},
    {"random_counselor", "random counselor", "{RANDOMCONSELOR}"},
    {"family_member", "family member", "{FAMILYMEMBER}"},
    {"friendname", "friendname", "{FRIENDNAME}"},
    {"different", "different", "{DIFFERENT}"},
    {"fighter", "fighter", "{FIGHTER}"},
    {"femalebot", "female bot", "{FEMALEBOT}"},
    {"androbot", "male bot", "{MALEBOT}"},
    {"neuterbot", "neuter bot", "{NEUTERBOT}"},
    {"botnames", "all bots", "{BOTNAMES}"},
    {"negative", "no", "{NEGATIVE}"},
    {"affirmative", "yes", "{AFFIRMATIVE}"},
    {"ramble", "ramble", "{RAMBLE}"},
    {"item", "item", "{ITEM}"},
    {"place", "place", "{PLACE}"},
    {"class", "study class", "{CLASS}"},
    {"liquid", "liquid", "{LIQUID}"},
    {"number", "number", "{NUMBER}"},
    {"profession", "profession", "PROFESSION"},
    {"one_liners", "one liner", "{ONELINER}"},
    {"adj", "adjective", "{ADJECTIVE}"},
    {"color", "color", "{COLOR}"},
    {"whenf", "whenf", "{WHENF}"},
    {"whenp", "whenp", "{WHENP}"},
    {"time", "time", "{TIME}"},
    {"food", "food", "{FOOD}"},
    {"animal", "animal", "{ANIMAL}"},
    {"weather", "weather", "{WEATHER}"},
    {"month", "month", "{MONTH}"},
    {"level_title", "level title", "{ALLLEVELTITLE}"},
    {"curse", "curse", "{CURSE}"},
    {"playtips", "playtips", "{PLAYTIPS}"},
}};

inline constexpr std::array<ChatPointer, 11> kChatPointers = {{
    {"\", 1, \"", "{RANDOMOPP}", "Any opp"},
    {"\", 4, \"", "{LEVELTITLE}", "Level title"},
    {"\", 0, \"", "{ANYBOTNAME}", "Any bot"},
    {"\", 2, \"", "{LEVELWINNER}", "First opp"},
    {"\", 3, \"", "{LEVELLOSER}", "Last opp"},
    {"\", 0, \"", "{ATTACKER}", "Attacker"},
    {"\", 0, \"", "{TARGET}", "Target"},
    {"\", 1, \"", "{WEAPONUSED}", "Weapon used"},
    {"\", 1, \"", "{LAST VICTIM}", "Last victim"},
    {"\", 0, \"", "{RANDOMOPP2}", "Any opp"},
    {"\", 0, \"", "{ATTACKER}", "Attacker"},
}};

/// Tables by index; an index beyond the table is a programming error.
inline const ChatType& ChatTypeAt(ChatTypeId type) {
  return kChatTypes.at(IndexOf(type));
}
inline const ChatGroup& ChatGroupAt(int group) {
  return kChatGroups.at(static_cast<std::size_t>(group));
}
inline const ChatPointer& ChatPointerAt(int pointer) {
  return kChatPointers.at(static_cast<std::size_t>(pointer));
}

/// The group whose lines are made for the situation: the one that random lines
/// are drawn from, but for a kill by rail.
int FittingGroup(ChatTypeId type);

/// A member of a group in editor form: "{{DEATHLAVA2}}".
std::string GroupMember(int group, std::string_view number);

/// Each of the members 0 to MaxNumber with the same chance (the gap of
/// GUYTALK included).
std::string RandomGroupMember(int group, const RandomSource& random);

/// The member numbers that the editor offers for a group.
std::vector<int> MemberNumbers(int group);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHAT_CHAT_CATALOGUE_H_
