// make_seeds FOLDER: first inputs for the fuzz targets, FOLDER/TARGET/NUMBER.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_catalogue.h"
#include "chat/chat_file.h"
#include "chat/chat_line.h"
#include "chat/synonym_list.h"
#include "install/packages/package_directory.h"
#include "install/packages/package_writer.h"
#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "install/program/settings_file.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/draft.h"
#include "session/presets.h"

namespace fragsmith {
namespace {

using Seeds = std::map<std::string, std::vector<std::string>>;

/// A bot with every kind of value and every group, word list and pointer.
Bot MakeOddBot() {
  Bot bot = CreateZeroBot();
  // What a bot refuses is not among these.
  bot.Put(kNameField, "Odd");
  bot.Put(kFunNameField, "\"^1O d^2d\"");
  bot.Put(kRailColorField, 4.0);
  bot.Put(kModelField, "TankJr");
  bot.Put(kSkinField, "Red");
  bot.Put(kArenaLordField, 1.0);
  int step = 0;
  for (const Level level : kLevels) {
    for (const int index : kPerLevelRange) {
      const std::vector<Value> values = {0.5F,   -2.5F,   250.0, -1.0,
                                         "word", Value(), " 7 ", "0.1234"};
      const auto place = static_cast<std::size_t>(step++) % values.size();
      bot.Put(ParameterId(level, index), values[place]);
    }
  }
  for (int group = 0; group < static_cast<int>(kChatGroups.size()); ++group) {
    const ChatTypeId type =
        kAllChatTypes.at(static_cast<std::size_t>(group) % kChatTypeCount);
    bot.SetChatLine(type, bot.EndOfChatLines(type),
                    GroupMember(group, std::to_string(group % 4)));
  }
  for (const ChatTypeId type : kAllChatTypes) {
    const auto add = [&](const std::string& line) {
      bot.SetChatLine(type, bot.EndOfChatLines(type), line);
    };
    for (const int pointer : ChatTypeAt(type).Pointers()) {
      const std::string variable(ChatPointerAt(pointer).Variable);
      add(variable);
      add(variable + " begins");
      add("in the " + variable + " middle");
      add("at the end " + variable);
    }
    for (std::size_t list = static_cast<std::size_t>(type);
         list < kWordLists.size(); list += kChatTypeCount) {
      const std::string variable(kWordLists.at(list).Variable);
      add(variable);
      add(variable + variable + " and " + variable);
    }
  }
  return bot;
}

void AddBotSeeds(const Bot& bot, Seeds& seeds) {
  const Author author = {"Somebody", "mail@example.org", ""};
  seeds["characteristic"].push_back(WriteCharacteristicFile(bot, author));
  seeds["weapon_weights"].push_back(WriteWeaponWeightFile(bot, author));
  seeds["item_weights"].push_back(WriteItemWeightFile(bot, author));
  seeds["description"].push_back(WriteDescriptionFile(bot, author));
  seeds["chat"].push_back(WriteChatFile(bot, author));
  // What the game makes of each of the five, see game_files_fuzz.cpp.
  char file = 0;
  for (const char* const kind : {"description", "characteristic",
                                 "weapon_weights", "item_weights", "chat"}) {
    seeds["game_files"].push_back(std::string(1, file++) + seeds[kind].back());
  }
  seeds["document"].push_back(WriteBotDocument(bot));
  seeds["draft"].push_back(WriteDraft({.bot = bot}));
  for (const ChatTypeId type : kAllChatTypes) {
    const std::string choice(1, static_cast<char>(type));
    for (const std::string& line : bot.ChatLines(type)) {
      seeds["chat_line"].push_back(choice + line);
      seeds["chat_line"].push_back(choice + ChatLineToFile(type, line));
    }
  }
}

/// The kind of file, which value of it is edited, to what, and the last file
/// of each kind: see edit_fuzz.cpp.
void AddEditSeeds(Seeds& seeds) {
  char kind = 0;
  for (const char* const name : {"description", "characteristic", "chat",
                                 "item_weights", "weapon_weights"}) {
    seeds["edit"].push_back(std::string{kind, '\5', kind} + seeds[name].back());
    ++kind;
  }
}

/// Hand-made files, as people write them.
void AddHandMadeSeeds(Seeds& seeds) {
  seeds["characteristic"].push_back(
      "//comment\n#include \"chars.h\"\n\nskill  1 //one\n{\n"
      " CHARACTERISTIC_NAME \"Some one\" /* CHARACTERISTIC_GENDER */\n"
      "\tCHARACTERISTIC_GENDER\t\"it\";\n\tCHARACTERISTIC_AIM_SKILL\t-.75\n"
      "\tCHARACTERISTIC_CHAT_CPM\t\t\t\t\t\t+12.3456 // fast\n"
      "/* CHARACTERISTIC_CROUCHER 1\n*/ CHARACTERISTIC_JUMPER .5\n}\n"
      "skill 2\n{\nCHARACTERISTIC_JUMPER 1\n}\nskill 5{\r\n"
      "CHARACTERISTIC_AIM_SKILL_BFG10K\t\t\t\t\"many\"\r}\r");
  seeds["weapon_weights"].push_back(
      "#include \"inv.h\"\n#define W_SHOTGUN 50\n#define W_BFG10K\t100 // big\n"
      "#define\tW_RAILGUN 3\n#define W_GRAPPLE\t\t\t\t\"x\"\n");
  seeds["item_weights"].push_back(
      "#define FS_HEALTH 1.5\n#define W_SHOTGUN\t2\n#define GWW_SHOTGUN 3\n"
      "/* #define W_QUAD 4 */\n#define FLAG_WEIGHT\t\t\t\t-5\n");
  seeds["description"].push_back(
      "//\n{\nname\t\tSome\nmodel\t\tdoom/Phobos\nfunname \"So me\" // fun\n"
      "color 3\naifile\tbots/some_c.c\nArenaLord\t1 }\n");
  seeds["chat"].push_back(
      "chat \"some\"\n{\n#include \"teamplay.h\"\ntype \"game_enter\"\n{\n"
      "\"Hi \", 0, \" and \" ,weapon , 1,\"!\"; // why\nHELLO;\nTAUNT_FEM3;\n"
      "curse, \" you\";\ndisease, \" again\";\n\"no end\"\n\"a;b\" ;\n}\n"
      "type \"level_end_lose\"\n{\n\"x \", 9, \" y\";\ntype \"nothing\"\n{\n"
      "word;\n}\n}\n");
  for (const char* const text :
       {"\1#include \"chars.h\"\n#define A(x,y) x##y\n#if 1 + A(1,2) * 3\n"
        "skill 1 { 0 \"a\" \"b\\q\" 2 $evalfloat(1.0/3) #pragma x\n"
        "CHARACTERISTIC_CHAT_FILE \"bots/x_t.c\" }\n#elif 0\n#else\n#endif",
        "\2#include <inv.h>\nweight \"a\" { switch(INVENTORY_ARMOR) { case 1: "
        "{ switch(2) { default: return balance(1,-2,.5); } } default: "
        "return $evalint(-5 % 2 ? 1 : 0x1f); } }\n",
        "\4#ifdef X\n#include \"no\"\n#endif\nchat \"a\" { { \"b\" } } chat "
        "\"default\" { type \"c\" { \"d\", 0, word; 'e'; } }"}) {
    seeds["game_files"].push_back(text);
  }
  seeds["game_files"].push_back(std::string(1, '\0') +
                                "{ name \"x\" x ; aifile\n} { { /* */ name "
                                "x aifile \"bots/x_c.c");
  seeds["document"].push_back(
      "{\"name\":\"Some\",\"funName\":\"So me\",\"railColor\":\"3\","
      "\"versionMajor\":\"1.5\",\"levels\":{\"4\":"
      "{\"CHARACTERISTIC_AIM_SKILL\":-0.25,\"CHARACTERISTIC_CAMPER\":\"\\u20ac"
      "\"}},\"chats\":{\"random_misc\":[\"\",\"{WEATHER} or {RANDOMOPP2}\"]}}");
  seeds["document"].push_back(
      R"({"format": 2, "name": "Newt", "tags": [1], "levels": {"3": {}, "4": )"
      R"({"CHARACTERISTIC_FLY": 1}}, "chats": {"game_pause": ["x"]}})");
  seeds["draft"].push_back(
      R"({"format": 2, "bot": {"format": 2, "name": "a / b", "x": 1}, "y": 2})");
  seeds["draft"].push_back(R"({"funName": "\"a\"", "versionMajor": "x"})");
  const std::string many_digits(400, '9');
  for (const std::string& document : std::initializer_list<std::string>{
           "{\"levels\":{\"2\":{}}}", "{\"comment\":\"a\\nb\"}",
           "{\"name\":\"\xC3\xA4\xC4\x81\"}", "{\"chats\":[[[[[[[[[]]]]]]]]]}",
           "{\"" + std::string(90, 'k') + "\":0}",
           "{\"arenaLord\":\"" + many_digits + "\"}",
           "{\"railColor\":\"" + many_digits + ".5\"}",
           "{\"railColor\":\"." + std::string(400, '0') + "1\"}"}) {
    seeds["document"].push_back(document);
  }
  seeds["characteristic"].push_back("CHARACTERISTIC_CHAT_CPM\t\t\t\t\t\t" +
                                    many_digits + ".5\n");
  seeds["settings"].push_back(
      "[Fragsmith settings]\nQ3Baseq3 = /games/arena\n"
      "\"WorkDir = a, b\"\nWinZipDir = \n\n"
      "UserName = Some One\nEmail = \nHttp = x\n"
      "Bots =  12 \n\nBaseQ3Check = 1");
  seeds["synonyms"].push_back(
      "[Fragsmith synonym list]\n\"rocket\"\n"
      "\"two words\"\nbare, \"again\"\n\"cut");
  seeds["listing"].push_back(
      "models/players/Robo/icon_default.tga\nmodels/players/robo/icon_RED.tga\n"
      "MODELS/players/doom/icon_x.tga\nmodels/players/a/b/icon_c.d.tga\n"
      "botfiles/bots/robo_c.c\nscripts/robo.bot\nbotfiles/bots/after_c.c\n"
      "scripts/bots.txt\nscripts/\nmodels/players/q\"/icon_q.tga\n");
}

void AddListSeeds(Seeds& seeds) {
  seeds["settings"].push_back(
      FormatSettings({"/games/arena", "/work", "/tools", "Some One",
                      "mail@example.org", "", 3, true}));
  seeds["synonyms"].push_back(FormatSynonyms({{"rocket", "rail gun", ""}}));
  ModelCatalogue models = ModelCatalogue::Standard();
  models.AddModelSkin("robo", "default", "robo.pk3",
                      "models\\players\\robo\\icon_default.tga");
  models.AddModelSkin("DOOM", "myRed", "UserDef", "");
  models.AddModelSkin("doom", "blue", "x.pk3", "i");
  seeds["model_list"] = {FormatModelList(models),
                         "x\na,b,c,d\r\"a b\" , \"c\r\nd\",,\n"};
  BotList bots = BotList::Standard();
  bots.AddBot("robo", "robo.pk3", true);
  bots.AddBot("sARGE", "other.pk3", false);
  seeds["bot_list"] = {FormatBotList(bots),
                       "x\na,b,#TRUE#\r\"a b\",\"\", #FALSE# \nc,d,e\n"};
}

std::string LowestFirst(std::uint64_t number, int count) {
  std::string bytes;
  for (; count > 0; --count, number >>= 8U) {
    bytes += static_cast<char>(number & 0xFFU);
  }
  return bytes;
}

/// The end of a package that claims a huge table of contents, once in the
/// record of small archives and once in that of large ones.
std::string LongEnd() {
  const std::string claim = LowestFirst(kMaxDirectoryBytes + 1, 8);
  const std::string end = "PK\x05\x06" + std::string(8, '\0');
  return "PK\x06\x06" + std::string(36, '\0') + claim + std::string(8, '\0') +
         "PK\x06\x07" + std::string(4, '\0') +
         LowestFirst(kMaxDirectoryBytes, 8) + std::string(4, '\0') + end +
         std::string(10, '\xFF') + end + claim.substr(0, 4) +
         std::string(6, '\0');
}

/// The package with its entries marked as ones with a password.
std::string WithCipher(std::string package) {
  for (const auto& [mark, place] :
       {std::pair("PK\x03\x04", 6), std::pair("PK\x01\x02", 8)}) {
    for (std::size_t at = package.find(mark); at != std::string::npos;
         at = package.find(mark, at + 1)) {
      package[at + static_cast<std::size_t>(place)] |= 1;
    }
  }
  return package;
}

void AddPackageSeeds(Seeds& seeds) {
  const std::vector<PackageEntry> entries = {
      {"botfiles/bots/robo_c.c", std::string(300, 'x')},
      {"scripts/ROBO.bot", "{\r\n}\r\n"},
      {"../out", "outside"},
      {"a\\b", ""}};
  const Result<std::string> package = FormatPackage(entries);
  if (!package) return;
  seeds["package"] = {*package,
                      package->substr(0, package->size() - 30),
                      package->substr(20),
                      LongEnd(),
                      WithCipher(*package),
                      "plain/names/" + std::string(200, 'y')};
}

std::string TargaHeader(int palette, int kind, int bits, int flags) {
  std::string header(18, '\0');
  header[1] = static_cast<char>(palette == 0 ? 0 : 1);
  header[2] = static_cast<char>(kind);
  header[5] = static_cast<char>(palette);
  header[7] = static_cast<char>(palette == 0 ? 0 : 24);
  header[12] = 4;
  header[14] = 3;
  header[16] = static_cast<char>(bits);
  header[17] = static_cast<char>(flags);
  return header;
}

void AddTargaSeeds(Seeds& seeds) {
  const std::string pixels = "the colours of twelve pixels in a row, or fewer";
  std::vector<std::string>& targa = seeds["targa"];
  for (const int bits : {8, 15, 16, 24, 32}) {
    for (const int flags : {0, 0x20}) {
      const int grey = bits == 8 ? 1 : 0;
      targa.push_back(TargaHeader(0, 2 + grey, bits, flags) + pixels + pixels);
      targa.push_back(TargaHeader(0, 10 + grey, bits, flags) + "\x85" + pixels +
                      "\x85" + pixels);
    }
  }
  targa.push_back(TargaHeader(8, 1, 8, 0) + pixels.substr(0, 24) +
                  std::string("\0\1\2\3\4\5\6\7\0\1\2\3", 12));
  targa.push_back(TargaHeader(8, 9, 8, 0) + pixels.substr(0, 24) + "\x8B\3");
}

bool WriteSeeds(const Seeds& seeds, const std::filesystem::path& folder) {
  for (const auto& [target, inputs] : seeds) {
    std::filesystem::create_directories(folder / target);
    for (std::size_t number = 0; number < inputs.size(); ++number) {
      std::ofstream file(folder / target / std::to_string(number),
                         std::ios::binary);
      file << inputs[number];
      if (!file.flush()) return false;
    }
  }
  return true;
}

}  // namespace
}  // namespace fragsmith

int main(int count, char** arguments) {
  using namespace fragsmith;
  if (count != 2) {
    std::cerr << "usage: make_seeds FOLDER\n";
    return 2;
  }
  Seeds seeds;
  AddBotSeeds(MakeOddBot(), seeds);
  AddEditSeeds(seeds);
  AddBotSeeds(CreateAverageBot([] { return 0.5; }), seeds);
  AddHandMadeSeeds(seeds);
  AddEditSeeds(seeds);
  AddListSeeds(seeds);
  AddPackageSeeds(seeds);
  AddTargaSeeds(seeds);
  return WriteSeeds(seeds, arguments[1]) ? 0 : 1;
}
