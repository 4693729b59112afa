#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "model/characteristic_catalogue.h"
#include "session/load_bot.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/session/plain_facts.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

/// In the order of reading.
constexpr BotFile kFiles[] = {BotFile::kCharacteristics, BotFile::kItemWeights,
                              BotFile::kWeaponWeights, BotFile::kChat,
                              BotFile::kDescription};

using FileSet = std::map<BotFile, std::string>;

/// Every value tells its key: 0.409 is key 9 of level 4.
Bot BaseBot() {
  Bot bot;
  const auto set = [&bot](ParameterId id, Value value) {
    bot.Put(id, std::move(value));
  };
  set(kNameField, "Rookie");
  set(kModelField, "biker");
  set(kSkinField, "hossman");
  set(kFunNameField, "^1Rook");
  for (const Level level : kLevels) {
    for (const int key : kPerLevelRange) {
      const ParameterId id(level, key);
      set(id, static_cast<float>(id.number()) / 1000.0F);
    }
  }
  for (int key = kChatRange.first; key <= kItemWeightRange.last; ++key) {
    set(ParameterId(key), 1.0 * key);
  }
  bot.SetChatLine(TypeAt(0), ChatLineIndex(0), "Hello {ANYBOTNAME}!");
  bot.SetChatLine(TypeAt(0), ChatLineIndex(1), "Here I am.");
  bot.SetChatLine(TypeAt(27), ChatLineIndex(0), "{{TAUNT3}}");
  return bot;
}

FileSet Written(const Bot& bot) {
  return {{BotFile::kCharacteristics, WriteCharacteristicFile(bot, {})},
          {BotFile::kItemWeights, WriteItemWeightFile(bot, {})},
          {BotFile::kWeaponWeights, WriteWeaponWeightFile(bot, {})},
          {BotFile::kChat, WriteChatFile(bot, {})},
          {BotFile::kDescription, WriteDescriptionFile(bot, {})}};
}

LoadedBot Load(const FileSet& files) {
  LoadedBot loaded;
  for (const BotFile file : kFiles) {
    ReadBotFile(file, WholeBot{}, files.at(file), "rookie",
                std::string(FileSuffix(file)), loaded);
  }
  return loaded;
}

std::vector<PlainFact> FactsOf(BotFile file, std::string_view bytes) {
  switch (file) {
    case BotFile::kCharacteristics:
      return CharacterFacts(bytes);
    case BotFile::kChat:
      return ChatFacts(bytes);
    case BotFile::kDescription:
      return DescriptionFacts(bytes);
    default:
      return WeightFacts(bytes);
  }
}

bool HasWord(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != std::string_view::npos;
       at = text.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    const char next = end < text.size() ? text[end] : ' ';
    if (std::isalnum(static_cast<unsigned char>(next)) == 0 && next != '_') {
      return true;
    }
  }
  return false;
}

/// True for a text with "line 7" or "lines 3, 5-9".
bool NamesLine(std::string_view text, std::size_t line) {
  static const std::regex groups("lines? ([0-9, -]+)");
  static const std::regex ranges("([0-9]+)(-([0-9]+))?");
  using Iterator = std::regex_iterator<std::string_view::const_iterator>;
  for (Iterator group(text.begin(), text.end(), groups); group != Iterator();
       ++group) {
    const std::string numbers = (*group)[1];
    for (std::sregex_iterator range(numbers.begin(), numbers.end(), ranges);
         range != std::sregex_iterator(); ++range) {
      const std::size_t first = std::stoul((*range)[1]);
      const std::size_t last =
          (*range)[3].matched ? std::stoul((*range)[3]) : first;
      if (line >= first && line <= last) return true;
    }
  }
  return false;
}

/// A note that names the fact: by its line, by its key (with its level), or
/// all the values of its level.
bool Names(const Note& note, const PlainFact& fact) {
  const std::string& text = note.text;
  if (fact.line != 0 &&
      (note.line == fact.line || NamesLine(text, fact.line))) {
    return true;
  }
  if (fact.key == "comment") return text.starts_with("Comments");
  if (fact.key == "#") return Contains(text, "does not include");
  const std::string level = "level " + std::to_string(fact.level);
  if (fact.level != 0 && HasWord(text, level) && Contains(text, "values")) {
    return true;
  }
  // These notes are about all levels.
  const bool has_level = fact.level == 0 || HasWord(text, level) ||
                         Contains(text, "where a bot has one") ||
                         Contains(text, "no place for") ||
                         Contains(text, "called by its name");
  std::string key = fact.key;
  if (key.starts_with("type \"")) key = key.substr(6, key.size() - 7);
  return has_level && HasWord(text, key);
}

/// What is in the first but not in the second, each as often as it is there.
std::vector<PlainFact> Without(std::vector<PlainFact> facts,
                               const std::vector<PlainFact>& others) {
  for (const PlainFact& other : others) {
    const auto same = std::find_if(
        facts.begin(), facts.end(), [&other](const PlainFact& fact) {
          return fact.level == other.level && fact.key == other.key &&
                 fact.value == other.value;
        });
    if (same != facts.end()) facts.erase(same);
  }
  return facts;
}

std::string Shown(const PlainFact& fact) {
  return std::to_string(fact.line) + ": " + fact.key + " of level " +
         std::to_string(fact.level) + " = " + fact.value;
}

struct OddFile {
  BotFile file;
  /// What is replaced in the base file, in the short form of GameLines; "~"
  /// stands for all between two texts.
  std::string_view old_text;
  std::string_view new_text;
  /// A parameter and the value that "as the game reads them" gives it.
  int parameter = 0;
  std::string_view as_game = {};
};

std::string Mutated(std::string bytes, const OddFile& odd) {
  const std::size_t wildcard = odd.old_text.find('~');
  const std::string start = GameLines(odd.old_text.substr(0, wildcard));
  std::size_t at = bytes.find(start);
  EXPECT_NE(at, std::string::npos) << start;
  std::size_t end = at + start.size();
  if (wildcard != std::string_view::npos) {
    const std::string last = GameLines(odd.old_text.substr(wildcard + 1));
    end = bytes.find(last, end);
    EXPECT_NE(end, std::string::npos) << last;
    end += last.size();
  }
  return bytes.replace(at, end - at, GameLines(odd.new_text));
}

constexpr BotFile kC = BotFile::kCharacteristics;
constexpr BotFile kI = BotFile::kItemWeights;
constexpr BotFile kW = BotFile::kWeaponWeights;
constexpr BotFile kT = BotFile::kChat;
constexpr BotFile kB = BotFile::kDescription;

// clang-format off
constexpr OddFile kOddFiles[] = {
    // Levels and keys that are missing, or there more than once.
    {kC, "skill 4~skill 5", "skill 5"},
    {kC, "skill 1~skill 5", "skill 5"},
    {kC, "skill 1~}|", ""},
    {kC, ">$JUMPER>>>>>>0.409|", ""},
    {kC, ">$CROUCHER>>>>>>0.508|>$JUMPER>>>>>>0.509|", ""},
    {kC, ">$CHAT_KILL>>>>>36|", ""},
    {kC, ">$WEAPONWEIGHTS>>>>\"bots/rookie_w.c\"|", ""},
    {kC, ">$CHAT_KILL>>>>>36|", ">$CHAT_KILL>>>>>0.5|"},
    {kC, ">$NAME>>>>>>>\"Rookie\"|", ">$NAME>>>>>>>\"Other\"|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>0.7|>$JUMPER>>>>>>0.409|"},
    {kC, "skill 5", "skill 4|{|>$JUMPER>>>>>>0.9|}|skill 5", 409, "0.409"},
    {kC, "skill 5", "skill 2|{|>$JUMPER>>>>>>0.2|>$CHAT_KILL>>>>>9|}|skill 5"},
    // Lines that begin a level.
    {kC, "skill 4", "skill 4.0", 409, "0.409"},
    {kC, "skill 4", "skill|4", 409, "0.409"},
    {kC, "skill 4", "/* hard */ skill 4"},
    {kC, "}||skill 4", "} skill 4"},
    {kC, "//=", "\xEF\xBB\xBF//="},
    {kC, "//~skill 1", "\xEF\xBB\xBFskill 1"},
    {kC, "#include \"chars.h\"|", ""},
    {kC, "skill 4|{|", "skill 4 { $WALKER 1|"},
    {kC, "skill 4|{|>$NAME", "skill 4 { $NAME"},
    {kC, "skill 4", "// skill 4", 109, "0.409"},
    // Where keys and values stand.
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER|>>0.409|", 409, "0.409"},
    {kC, ">$JUMPER>>>>>>0.409|", "$CAMPER 0.9 $JUMPER 0.409|"},
    {kC, "{|>$NAME", "{ $WALKER 1 $NAME"},
    {kC, ">$JUMPER>>>>>>0.409|", "} $JUMPER 0.409|", 409, "0.409"},
    {kC, ">$FIRETHROTTLE>>>>>0.43|}", ">$FIRETHROTTLE>>>>>0.43}", 430, "0.43"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER 0.409|", 409, "0.409"},
    {kC, ">$JUMPER>>>>>>0.409|", ">// $JUMPER>>>>>>0.409|", 409, ""},
    {kC, ">$JUMPER>>>>>>0.409|", "/*|>$JUMPER>>>>>>0.409|*/|", 409, ""},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>0.409 // high|", 409, "0.409"},
    {kC, ">$JUMPER>>>>>>0.409|", ">characteristic_jumper 0.409|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPERS>>>>>0.409|"},
    // Values that change.
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>-2|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>-0.5|", 409, "-0.5"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>0.12345|", 409, "0.12345"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>123456.125|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>12345678901234567|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>10000000000000000000000000000000000000000000000001|"},
    {kC, ">$GENDER>>>>>>\"male\"", ">$GENDER>>>>>>male"},
    {kC, ">$CHAT_FILE>>>>>\"bots/rookie_t.c\"", ">$CHAT_FILE>>>>>bots/rookie_t.c"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>\"0.5\"|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>high|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>100;|"},
    {kC, ">$FIRETHROTTLE>>>>>0.43|", ">$FIRETHROTTLE>>>>>0|"},
    {kC, ">$NAME~skill", ">$NAME>>>>>>>\"Roo kie\"|>$GENDER>>>>>>\"fe male\"|}|skill"},
    // What the bot has no place for.
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>0.409|>$WALKER>0.5|"},
    {kC, ">$JUMPER>>>>>>0.409|", ">$JUMPER>>>>>>0.409|>48 0.5|>junk|"},
    {kC, "#include \"chars.h\"", "#include \"chars.h\"|#include \"mine.h\"|#define X 1"},
    {kC, "skill 1", "// mine|/* and|mine */|skill 1"},
    {kC, "bots/rookie_w.c", "bots/shared_w.c"},
    {kC, "bots/rookie_t.c", "bots/shared_t.c"},
    {kC, ">$CHAT_NAME>>>>>\"rookie\"", ">$CHAT_NAME>>>>>\"roo\""},
    {kC, "version 0.0", "version 1.5"},
    // Weights.
    {kW, "&W_RAILGUN>>>>49", "#define>W_RAILGUN>>>>49", 49, "49"},
    {kW, "&W_RAILGUN>>>>49", "& W_RAILGUN>>>>49", 49, "49"},
    {kW, "&W_RAILGUN>>>>49", "# define W_RAILGUN 49", 49, "49"},
    {kW, "&W_RAILGUN>>>>49", "&W_RAILGUN 490 // much", 49, "490"},
    {kW, "&W_RAILGUN>>>>49", "& w_railgun>>>>49"},
    {kW, "&W_RAILGUN>>>>49|", ""},
    {kW, "&W_RAILGUN>>>>49", "// &W_RAILGUN>>>>49"},
    {kW, "&W_RAILGUN>>>>49", "&W_RAILGUN>>>>50|&W_RAILGUN>>>>49"},
    {kW, "&W_RAILGUN>>>>49", "&W_RAILGUN>>>>-49"},
    {kW, "&W_RAILGUN>>>>49", "&W_RAILGUN>>>>(5+3)"},
    {kW, "&W_RAILGUN>>>>49", "&W_RAILGUN"},
    {kW, "&W_RAILGUN>>>>49", "&RGW>>>>49|&MINE 1|&W_RAILGUN>>>>49"},
    {kW, "&W_RAILGUN>>>>49", "#undef W_RAILGUN|&W_RAILGUN>>>>49"},
    {kW, "&W_GAUNTLET~&W_RAILGUN>>>>49|", ""},
    {kW, "#include \"fw_weap.c\"", "weight \"Gauntlet\"|{|return W_GAUNTLET;|}"},
    {kW, "#include \"fw_weap.c\"", "#include \"fuzw.c\""},
    {kI, "#include \"inv.h\"", "#include \"inv.h\"|// my items|/* all of|mine */"},
    {kI, "&FS_HEALTH>>>>54", "&FS_HEALTH>>>>0.1234", 54, "0.1234"},
    {kI, "&GWW_RAILGUN>>>>68", "&FLAGS 3|&GWW_RAILGUN>>>68"},
    {kI, "&FLAG_WEIGHT>>>>80", "&FLAG_WEIGHT>>>>400.12345", 80, "400.12345"},
    {kI, "&W_SHOTGUN~#include", "#include"},
    // Chats.
    {kT, "Here I am.\";", "Here I am.\"; // again"},
    {kT, "Here I am.\";", "Here I am.\"; /* again */"},
    {kT, "Here I am.\";", "Here I am.\"; }"},
    {kT, "Here I am.\";", "Here I am.\"; \"Again\";"},
    {kT, "Here I am.\";", "Here\"|>>\"I am.\";"},
    {kT, "Here I am.\";", "Here\",|>>0, \"I am.\";"},
    {kT, "Here I am.\";", "Here>I am.\";"},
    {kT, "Here I am.\";", "Here is {ANYBOTNAME}.\";"},
    {kT, "Here I am.\";", "My PROFESSION\";"},
    {kT, "Here I am.\";", "\";"},
    {kT, "\"Here I am.\"", "\"Here I am.\", 7, \"!\""},
    {kT, "\"Here I am.\"", "\"weapon\""},
    {kT, "\"Here I am.\"", "mywords"},
    {kT, "\"Here I am.\"", "0"},
    {kT, "chat \"Rookie\"|{", "chat \"Rookie\"|{ {"},
    {kT, "type \"game_exit\"|>{", "type \"game_exit\"|>{|>{"},
    {kT, ">}||>type \"game_exit\"", ">}|>}||>type \"game_exit\""},
    {kT, ">type \"game_exit\"|>{|>}|", ""},
    {kT, "\"Here I am.\"", "HELLO0"},
    {kT, "\"Here I am.\"", "HELLO77"},
    {kT, ">>\"Here I am.\";", "// new|>> // \"Old.\";|>>\"Here I am.\";"},
    {kT, ">>\"Here I am.\";", "/* old|>>\"Old.\";|*/|>>\"Here I am.\";"},
    {kT, ">}||>type \"game_exit\"", ">type \"game_exit\""},
    {kT, "type \"game_exit\"|>{|", "type \"game_exit\" { \"Bye\";|"},
    {kT, "type \"game_exit\"|>{|", "type \"game_exit\"|>{ \"Bye\";|"},
    {kT, "type \"game_exit\"|>{|>}", "type \"game_exit\" {} type \"game_enter\" { \"x\"; }"},
    {kT, "type \"game_exit\"|>{|", "type \"my_game_exit\"|>{|>>\"Bye\";|"},
    {kT, "type \"game_exit\"|>{|", "type \"my_own\"|>{|>>\"Bye\";|"},
    {kT, "type \"game_exit\"|>{|", "type \"game_enter\"|>{|>>\"Bye\";|"},
    {kT, ">}||>type \"game_exit\"", ">} \"Bye\";||>type \"game_exit\""},
    {kT, ">}||>type \"game_exit\"", ">}|>>\"Bye\";|>type \"game_exit\""},
    {kT, ">#include \"teamplay.h\"", ">#include \"teamplay.h\"|>#include \"mine.h\""},
    {kT, "chat \"Rookie\"", "chat \"Other\""},
    {kT, "chat \"Rookie\"", "/* a type of chat */|chat \"Rookie\""},
    // Descriptions.
    {kB, "funname>^1Rook", "funname>^1Rook|color2>5|handicap>50|gear>9"},
    {kB, "funname>^1Rook", "funname>^1Rook|color1>4", kRailColorField.number(), "4"},
    {kB, "funname>^1Rook", "funname>The New Rook", kFunNameField.number(), "The"},
    {kB, "funname>^1Rook", "funname>\"\""},
    {kB, "funname>^1Rook", "funname>^1Rook; // mine", kFunNameField.number(), "^1Rook;"},
    {kB, "aifile", "arenaLord>\"1\"|aifile", kArenaLordField.number(), "1"},
    {kB, "aifile", "arenaLord>2|aifile"},
    {kB, "aifile", "arenaLord>0|color>None|aifile"},
    {kB, "aifile", "headmodel>sarge/red|aifile", kModelField.number(), "biker"},
    {kB, "aifile>bots/rookie", "aifile>bots/shared"},
    {kB, "name>>Rookie", "name>>Other"},
    {kB, "{|", "{|// no color in this model|", kRailColorField.number(), "None"},
    {kB, "//~{|", "\xEF\xBB\xBF{|"},
    {kB, "{~}", "{ name Rookie model biker/hossman funname X aifile bots/rookie_c.c }", kFunNameField.number(), "X"},
    {kB, "{|", "{|name>Other|color>3|model>sarge|gear>2|}|{|"},
    {kB, "}", "}|{|name>Other|funname>Any|arenaLord>1|}|// end"},
    {kB, "model>>biker/hossman", "model>>biker/hoss man // x", kSkinField.number(), "hoss"},
};
// clang-format on

bool AnyNote(const Notes& notes, BotFile file,
             const std::function<bool(const Note&)>& holds) {
  return std::any_of(notes.list().begin(), notes.list().end(),
                     [&](const Note& note) {
                       return note.file == FileSuffix(file) && holds(note);
                     });
}

/// What differs between the files that were loaded and those that a save
/// makes of them, and that no note names.
std::string Unnamed(const FileSet& files, const Notes& notes,
                    const FileSet& saved) {
  std::string unnamed;
  for (const BotFile file : kFiles) {
    const std::vector<PlainFact> before = FactsOf(file, files.at(file));
    const std::vector<PlainFact> after = FactsOf(file, saved.at(file));
    const std::vector<PlainFact> lost = Without(before, after);
    const auto is_named = [&](const PlainFact& fact) {
      return AnyNote(notes, file,
                     [&](const Note& note) { return Names(note, fact); });
    };
    for (const PlainFact& fact : lost) {
      if (!is_named(fact)) unnamed += "lost " + Shown(fact) + "\n";
    }
    for (PlainFact& fact : Without(after, before)) {
      fact.line = 0;
      // What takes the place of something lost is told with it, and a chat
      // line that came to be is quoted.
      const bool is_instead =
          std::any_of(lost.begin(), lost.end(), [&](const PlainFact& other) {
            return other.key == fact.key && other.level == fact.level;
          });
      const bool is_quoted =
          fact.value.size() > 2 && AnyNote(notes, file, [&](const Note& note) {
            return Contains(note.text,
                            fact.value.substr(1, fact.value.size() - 2));
          });
      if (!is_instead && !is_quoted && !is_named(fact)) {
        unnamed += "new " + Shown(fact) + "\n";
      }
    }
  }
  return unnamed;
}

TEST(OddFileSets, LoseNothingButWhatANoteNames) {
  const FileSet base = Written(BaseBot());
  ASSERT_TRUE(Load(base).notes.empty()) << Described(Load(base).notes).at(0);
  for (const OddFile& odd : kOddFiles) {
    SCOPED_TRACE(std::string(FileSuffix(odd.file)) + " " +
                 std::string(odd.old_text) + " -> " +
                 std::string(odd.new_text));
    FileSet files = base;
    files.at(odd.file) = Mutated(files.at(odd.file), odd);
    LoadedBot loaded = Load(files);
    const FileSet saved = Written(loaded.bot);
    EXPECT_EQ(Unnamed(files, loaded.notes, saved), "")
        << ::testing::PrintToString(Described(loaded.notes));
    EXPECT_LE(loaded.notes.list().size(), 7U);

    const LoadedBot again = Load(saved);
    EXPECT_EQ(Unnamed(saved, again.notes, Written(again.bot)), "")
        << ::testing::PrintToString(Described(again.notes));

    if (odd.parameter != 0) {
      TakeValuesAsGame(loaded.bot, ReportOf(loaded, loaded.bot),
                       ModelCatalogue::Standard());
      EXPECT_EQ(ToLower(loaded.bot.Text(Id(odd.parameter))),
                ToLower(odd.as_game));
    }
  }
}

}  // namespace
}  // namespace fragsmith
