#include "session/load_bot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "support/text.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

/// In the order of reading: how the files end and what a missing one brings.
const std::vector<std::string> kSuffixes = {"_c.c", "_i.c", "_w.c", "_t.c",
                                            ".bot"};
const std::vector<std::string> kMissing = {
    "Error during load: Unable to find characteristics file for rookie.",
    "Error during load: Unable to find item weight file for rookie.",
    "Error during load: Unable to find weapon weight file for rookie.",
    "Error during load: Unable to find chat file for rookie.",
    "Error during load: Unable to find bot file for rookie."};

std::string NameLine(const std::string& name) {
  return "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t" + name + "\r\n";
}

/// What counts of a bot; its numbers may be held in several ways.
std::string Shown(const Bot& bot) { return WriteBotDocument(bot); }

std::string Looks(const Bot& bot) {
  return bot.Text(kModelField) + "/" + bot.Text(kSkinField) + " " +
         bot.Text(kArenaLordField) + " " + bot.FunName();
}

class LoadBotTest : public ::testing::Test {
 protected:
  LoadBotTest() : bot_(CreateAverageBot([] { return 0.5; })) {
    Set(bot_, kNameField, "Rookie");
    Set(bot_, kGenderField, "it");
    Set(bot_, kModelField, "Biker");
    Set(bot_, kSkinField, "Hossman");
    Set(bot_, kFunNameField, "\"The ^1New\"");
    Set(bot_, kRailColorField, 5.0);
    Set(bot_, kArenaLordField, 1.0);
  }

  static void Set(Bot& bot, const IdNumber& index, Value value) {
    ASSERT_TRUE(bot.SetParameter(Id(index), std::move(value)));
  }

  void Save(const std::string& folder, bool uses_layout = false) {
    fs::create_directories(folder_ / folder);
    ScriptedPrompts none;
    ASSERT_FALSE(
        SaveBot(bot_, folder_ / folder, {uses_layout, false}, {}, none).error);
  }

  LoadedBot Load(const std::string& name, const std::string& folder,
                 FolderLoadOptions options = {}) {
    prompts_.log.clear();
    return LoadBotFromFolder(name, folder_ / folder, options,
                             {models_, bots_, prompts_});
  }

  TestFolder folder_;
  ModelCatalogue models_ = ModelCatalogue::Standard();
  BotList bots_ = BotList::Standard();
  Bot bot_;
  ScriptedPrompts prompts_;
};

TEST(Fingerprint, IsTheSameAloneAndBesideOthers) {
  // Drafts keep it.
  EXPECT_EQ(FingerprintOf("a"), 0xAF63DC4C8601EC8CU);
  const std::vector<std::string_view> files = {"a long one", "\xFF", "",
                                               "short", "a"};
  for (std::size_t count = 0; count <= files.size(); ++count) {
    const std::vector<std::string_view> some(
        files.begin(), files.begin() + static_cast<std::ptrdiff_t>(count));
    std::vector<std::uint64_t> alone;
    for (const std::string_view file : some) {
      alone.push_back(FingerprintOf(file));
    }
    EXPECT_EQ(FingerprintsOf(some), alone);
  }
}

TEST_F(LoadBotTest, FindsTheFilesWhateverTheirCase) {
  Save("bot");
  for (const std::string name : {"rookie_c.c", "Rookie_C.C", "ROOKIE_i.c",
                                 "rookie_W.c", "roOkie_t.C", "rookie.BOT"}) {
    fs::rename(folder_ / ("bot/" + ToLower(name)), folder_ / ("bot/" + name));
    const LoadedBot loaded = Load("rookie", "bot");
    EXPECT_EQ(Shown(loaded.bot), Shown(bot_)) << name;
    EXPECT_TRUE(loaded.notes.empty());
    EXPECT_EQ(loaded.files.size(), 5U);
    EXPECT_THAT(prompts_.log, IsEmpty());
  }
  // The exact spelling goes before.
  folder_.Write("bot/rookie_c.c", NameLine("\"Exact\""));
  EXPECT_EQ(Load("rookie", "bot").bot.Name(), "Exact");
}

TEST_F(LoadBotTest, TellsOfWhatStaysInTheHeader) {
  const auto note_count = [this](const Author& author = {}) {
    fs::create_directories(folder_ / "made");
    ScriptedPrompts none;
    EXPECT_FALSE(SaveBot(bot_, folder_ / "made", {}, author, none).error);
    return LoadBotFromFolder("rookie", folder_ / "made", {},
                             {models_, bots_, prompts_, {"Ann", "", ""}})
        .notes.list()
        .size();
  };
  // A save names who sits at the program, which is Ann.
  EXPECT_EQ(note_count({"Bob", "", ""}), 1U);
  EXPECT_EQ(note_count({"Ann", "", ""}), 0U);
  EXPECT_EQ(note_count(), 0U);
  Set(bot_, kVersionMinorField, 1.0);
  EXPECT_EQ(note_count(), 1U);
  Set(bot_, kVersionMinorField, 0.0);
  Set(bot_, kCommentField, "mine");
  EXPECT_EQ(note_count(), 1U);
}

TEST_F(LoadBotTest, MissesNoDescriptionThatAnotherOneHas) {
  Save("bot");
  const std::string own = folder_.Read("bot/rookie.bot");
  fs::remove(folder_ / "bot/rookie.bot");
  for (const char* const name : {"bots.txt", "others.bot"}) {
    const std::string path = "bot/" + std::string(name);
    folder_.Write(path, "{ name x aifile bots/x_c.c }\n" + own);
    EXPECT_EQ(Load("rookie", "bot").files.size(), 4U);
    EXPECT_THAT(prompts_.log, IsEmpty()) << name;
    folder_.Write(path, "{ name x aifile bots/x_c.c }\n");
    EXPECT_EQ(Load("rookie", "bot").files.size(), 4U);
    EXPECT_THAT(prompts_.log, ElementsAre(kMissing.back())) << name;
  }
}

TEST_F(LoadBotTest, TellsOfOldLineEnds) {
  Save("bot");
  std::string items = folder_.Read("bot/rookie_i.c");
  std::erase(items, '\n');
  folder_.Write("bot/rookie_i.c", items);
  EXPECT_THAT(Load("rookie", "bot").notes.list(),
              testing::ElementsAre(testing::Field(
                  &Note::text, testing::HasSubstr("all one line"))));
}

TEST_F(LoadBotTest, TellsOfAByteOrderMark) {
  Save("bot");
  for (const char* const name : {"rookie_c.c", "rookie_w.c", "rookie.bot"}) {
    const std::string file = "bot/" + std::string(name);
    folder_.Write(file, "\xEF\xBB\xBF" + folder_.Read(file));
  }
  const LoadedBot loaded = Load("rookie", "bot");
  EXPECT_EQ(loaded.bot.Text(kModelField), "Biker");
  EXPECT_EQ(std::ranges::count_if(loaded.notes.list(),
                                  [](const Note& note) {
                                    return note.text.find("byte order") !=
                                           std::string::npos;
                                  }),
            3);
}

TEST_F(LoadBotTest, TellsEachMissingFileAndReadsTheOthers) {
  for (std::size_t missing = 0; missing < kSuffixes.size(); ++missing) {
    Save("bot");
    fs::remove(folder_ / ("bot/rookie" + kSuffixes[missing]));
    EXPECT_EQ(Load("rookie", "bot").files.size(), 4U);
    EXPECT_THAT(prompts_.log, ElementsAre(kMissing[missing]));
  }
  EXPECT_EQ(Shown(Load("rookie", "none").bot), Shown(Bot()));
  EXPECT_THAT(prompts_.log, ElementsAreArray(kMissing));
  EXPECT_EQ(prompts_.messages.back().icon, MessageIcon::kInformation);
  // The files are looked for in the folder alone.
  Save("bot");
  EXPECT_EQ(Load("../bot/rookie", "bot").files.size(), 0U);
}

TEST_F(LoadBotTest, LooksForTheDescriptionBesideBotfiles) {
  const FolderLoadOptions layout = {.uses_layout = true};
  Save("game", true);
  folder_.Write("game/botfiles/bots/rookie.bot", "funname\tWrong\r\n");
  EXPECT_EQ(Load("rookie", "game/botfiles/bots").bot.FunName(), "Wrong");
  // The first place where the text has it counts, whatever follows there.
  const std::string deep = "game/botfiles/bots2/x/botfiles/bots";
  Save(deep);
  for (const std::string& folder :
       {std::string("game/botfiles/bots"), std::string("game//botfiles/bots/"),
        deep}) {
    EXPECT_EQ(Shown(Load("rookie", folder, layout).bot), Shown(bot_)) << folder;
    EXPECT_THAT(prompts_.log, IsEmpty());
  }
  fs::remove(folder_ / "game/scripts/rookie.bot");
  EXPECT_EQ(Load("rookie", "game/botfiles/bots", layout).bot.FunName(), "");
  EXPECT_THAT(prompts_.log, ElementsAre(kMissing[4]));

  Set(bot_, kNameField, "Hossman");
  for (const std::string folder : {"game/BotFiles/Bots", "game/bots"}) {
    Save(folder);
    EXPECT_EQ(Looks(Load("hossman", folder, layout).bot), "Biker/Hossman 0 ");
    EXPECT_THAT(prompts_.log,
                ElementsAre("Error!: Couldn't load the bot file because the "
                            "directory structure doesn't comply with the "
                            "standard Q3 one..."));
    EXPECT_EQ(prompts_.messages.back().icon, MessageIcon::kInformation);
  }
}

TEST_F(LoadBotTest, KnowsStandardBotsAndTheCatalogue) {
  bots_.AddBot("Doom", "mod.pk3", true);
  using Row = std::array<std::string, 3>;
  for (const auto& [name, model, looks] :
       {Row{"Anarki", "", "Anarki/Default 1 ^1A^2n^3a^4r^5k^6i"},
        Row{"Sarge", "", "Sarge/Default 1 "},
        Row{"Phobos", "", "Doom/Phobos 0 "},
        // These are none, or none any more.
        Row{"anarki", "", "Sarge/Default 0 "},
        Row{"Doom", "", "Sarge/Default 0 "},
        // With a description its model counts.
        Row{"Anarki", "BIKER/HOSSMAN", "Biker/Hossman 0 "},
        Row{"Sarge", "tankjr", "TankJr/Default 0 "},
        Row{"Rookie", "BIKER/homeMade", "Biker/homeMade 0 "},
        Row{"Rookie", "gargoyle/RED", "gargoyle/RED 0 "}}) {
    folder_.Write("bot/x_c.c", NameLine(name));
    fs::remove(folder_ / "bot/x.bot");
    if (!model.empty()) folder_.Write("bot/x.bot", "model\t" + model + "\r\n");
    EXPECT_EQ(Looks(Load("x", "bot").bot), looks) << name << ' ' << model;
    // Without a look at descriptions they stay those of a new bot.
    EXPECT_EQ(Looks(Load("x", "bot", {.loads_description = false}).bot),
              "Sarge/Default 0 ");
    EXPECT_EQ(prompts_.log.size(), 3U);
  }
}

TEST_F(LoadBotTest, NamesABotAfterItsFileWhereItMust) {
  using Row = std::array<std::string, 2>;
  for (const auto& [lines, name] :
       {Row{NameLine("\"Roo kie\""), "Rookie"}, Row{NameLine("123"), "123"},
        Row{"", "File"}, Row{NameLine("\"\""), "File"},
        Row{NameLine("\"../a\""), "File"}, Row{NameLine("\"a\\b\""), "File"}}) {
    folder_.Write("bot/File_c.c", lines);
    const LoadedBot loaded = Load("File", "bot");
    EXPECT_EQ(loaded.bot.Name(), name) << lines;
    EXPECT_EQ(Contains(::testing::PrintToString(Described(loaded.notes)),
                       "after its file"),
              name == "File")
        << lines;
  }
}

TEST_F(LoadBotTest, ReadsOneFileIntoABotThatIsThere) {
  Save("bot");
  // Where case does not count, this is the file of the set.
  if (kIsUnix) folder_.Write("bot/rookie_C.C", "");
  folder_.Write("bot/rookie_c.c.old", "");
  Bot mine;
  Set(mine, kNameField, "Mine");
  Set(mine, kCommentField, "kept");
  mine.SetChatLine(TypeAt(7), ChatLineIndex(4), "Mine");
  // A parameter that comes from the file of that number; the chat has none.
  const std::vector<ParameterId> read = {kRailColorField, Id(405), kNameField,
                                         kArmorWeight, Id(44)};
  std::vector<std::string> suffixes = kSuffixes;
  suffixes.insert(suffixes.end(), {"_C.C", "_c.c.old", ""});
  for (int type = 0; type <= 4; ++type) {
    const auto file = static_cast<BotFile>(type);
    LoadedBot loaded = {.bot = mine};
    for (const std::string& suffix : suffixes) {
      EXPECT_EQ(LoadSingleFile(file, folder_ / ("bot/rookie" + suffix), loaded,
                               prompts_),
                suffix == FileSuffix(file));
    }
    EXPECT_EQ(loaded.bot.Name() + loaded.bot.Text(kCommentField), "Minekept");
    for (const ParameterId index : read) {
      const bool is_read = index == read.at(static_cast<std::size_t>(type));
      if (index == kNameField) continue;
      EXPECT_EQ(loaded.bot.Text(index), (is_read ? bot_ : mine).Text(index));
    }
    EXPECT_EQ(loaded.bot.ChatLines(TypeAt(7)),
              (file == BotFile::kChat ? bot_ : mine).ChatLines(TypeAt(7)));
  }
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(FaultOfName(BotFile::kChat, "a_c.c"),
            "its name does not end as it should");
  EXPECT_EQ(FaultOfName(BotFile::kChat, PathFromBytes("\xCE\xB1_t.c")),
            "its name has characters that the game does not have");
  EXPECT_EQ(FaultOfName(BotFile::kChat, "a_t.c"), "");
  LoadedBot loaded;
  EXPECT_FALSE(LoadSingleFile(BotFile::kChat, folder_ / "no/rookie_t.c", loaded,
                              prompts_));
  EXPECT_THAT(prompts_.log, ElementsAre(kMissing[3]));
}

TEST_F(LoadBotTest, TakesValuesAsTheGameOnDemand) {
  folder_.Write("bot/x_c.c",
                "skill 1\n\t//CHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Hidden\"\n"
                "\tCHARACTERISTIC_AIM_ACCURACY\t\t\t\t\t0.1234\n");
  folder_.Write("bot/x.bot", "model\t\tsarge/roderic // beefy\n");
  LoadedBot loaded = Load("x", "bot");
  const auto shown = [&loaded] {
    return loaded.bot.Name() + " " + loaded.bot.Text(Id(104)) + " " +
           Looks(loaded.bot);
  };
  EXPECT_EQ(shown(), "Hidden 0 Sarge/roderic//beefy 0 ");
  EXPECT_EQ(loaded.plain_values.size(), 3U);
  // For the game the bot has no name, but a bot must have one.
  TakeValuesAsGame(loaded.bot, ReportOf(loaded, loaded.bot), models_);
  EXPECT_EQ(shown(), "Hidden 0.1234 Sarge/Roderic 0 ");
}

}  // namespace
}  // namespace fragsmith
