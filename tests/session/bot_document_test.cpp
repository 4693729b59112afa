#include "session/bot_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "session/presets.h"
#include "support/random.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The document, of which nothing is to be noted.
Result<BotDocument> Read(std::string_view json) {
  Notes notes;
  Result<BotDocument> document = ReadBotDocument(json, "bot.json", notes);
  EXPECT_TRUE(notes.empty());
  return document;
}

/// The bot of a document, with its identity checked.
Bot Checked(const Result<BotDocument>& document) {
  Bot bot = document.value().bot;
  ScriptedPrompts prompts;
  EXPECT_EQ(CheckAllIn(document.value().texts, bot, prompts), std::nullopt);
  return bot;
}

TEST(BotDocument, HasItsKeysInOrder) {
  Bot bot;
  const std::pair<int, Value> values[] = {
      {102, 0.1F},          {103, 2.0}, {104, "odd\xE4"},
      {105, " 07.50"},      {106, 0.7}, {107, -1.18F},
      {2, "\"Big \xFCx\""}, {3, "5"},   {7, 1.5}};
  for (const auto& [index, value] : values) {
    Set(bot, Id(index), value);
  }
  bot.SetChatLine(TypeAt(0), ChatLineIndex(0), "{WEAPON} \x81\"");
  std::string json = WriteBotDocument(bot);
  EXPECT_TRUE(json.starts_with("{\n  \"format\": 1,\n  \"name\": \"Bot\",\n"));
  EXPECT_TRUE(json.ends_with("\n    \"random_misc\": []\n  }\n}\n"));
  std::erase(json, ' ');
  std::erase(json, '\n');
  std::size_t place = 0;
  for (const char* part :
       {R"("name":"Bot","gender":"male","funName":"Bigüx","railColor":5,)",
        R"("model":"Sarge","skin":"Default","versionMajor":1.5,)",
        R"("versionMinor":0,"comment":"","arenaLord":0,"levels":{"1":{)",
        R"("CHARACTERISTIC_ATTACK_SKILL":0.1,"CHARACTERISTIC_AIM_SKILL":2,)",
        R"("CHARACTERISTIC_AIM_ACCURACY":"oddä",)",
        R"("CHARACTERISTIC_VIEW_FACTOR":7.5,)",
        R"("CHARACTERISTIC_VIEW_MAXCHANGE":0.7,)",
        R"("CHARACTERISTIC_REACTIONTIME":-1.18,"CHARACTERISTIC_CROUCHER":0,)",
        R"("CHARACTERISTIC_FIRETHROTTLE":0},"4":{)", R"("5":{)",
        R"("chatCharacteristics":{)", R"("weaponWeights":{"W_GAUNTLET":0,)",
        R"("W_GRAPPLE":0},"itemWeights":{"FS_HEALTH":0,)", "GWW_PLASMAGUN",
        R"("FLAG_WEIGHT":0},"chats":{)",
        "\"game_enter\":[\"{WEAPON}\xC2\x81\\\"\"],"}) {
    place = json.find(part, place);
    ASSERT_NE(place, std::string::npos) << part;
  }
  // The version, 10 texts, 3 levels of 29 values, 50 single values, 28 chat
  // types.
  EXPECT_EQ(std::count(json.begin(), json.end(), ':'),
            1 + 10 + 1 + 3 + 3 * 29 + 3 + 50 + 1 + 28);
}

TEST(BotDocument, ComesBackAsItWas) {
  const RandomSource random = SeededRandom(11);
  for (int round = 0; round < 30; ++round) {
    Bot bot = CreateAverageBot(random);
    Set(bot, Id(0), "nix\xC4\xDF");
    Set(bot, Id(2), round % 2 == 0 ? "\"a b\"" : "^1a\x9D");
    Set(bot, Id(9), "c\x01 \"q\" \\");
    Set(bot, Id(3), round % 3 == 0 ? Value(3.0) : Value("blue"));
    Set(bot, Id(10), round - 7.0);
    for (int index = 31; index <= 80; ++index) {
      Set(bot, Id(index),
          random() < 0.5 ? Value(random() * 1e9) : Value("t\xE4xt"));
    }
    bot.SetChatLine(TypeAt(5), ChatLineIndex(2), "\xFF/ \x7F");
    const std::string json = WriteBotDocument(bot);
    EXPECT_EQ(Checked(Read(json)), bot);
  }
  EXPECT_EQ(Checked(Read("{}")), Bot());
}

TEST(BotDocument, TakesNumbersAndTextsForValues) {
  const Bot bot = Checked(Read(
      R"({"versionMajor": "1.5", "versionMinor": 2, "arenaLord": "1",
          "levels": {"4": {"CHARACTERISTIC_JUMPER": "0.5"}},
          "weaponWeights": {"W_SHOTGUN": 7}, "itemWeights": {"W_SHOTGUN": 1e2},
          "chats": {"death_lava": ["a", ""], "death_slime": []}})"));
  for (const auto& [index, text] : {std::pair(7, "1.5"),
                                    {8, "2"},
                                    {10, "1"},
                                    {409, "0.5"},
                                    {45, "7"},
                                    {56, "100"}}) {
    EXPECT_EQ(bot.Text(Id(index)), text) << index;
  }
  EXPECT_THAT(bot.ChatLines(TypeAt(11)), ElementsAre("a", ""));
  EXPECT_THAT(bot.ChatLines(TypeAt(12)), ElementsAre(""));
}

TEST(BotDocument, NamesTheFieldThatIsWrong) {
  const std::string deep(5'000'000, '[');
  // clang-format off
  const std::pair<std::string, std::string> cases[] = {
      {R"({"nmae": "x"})", "nmae"}, {R"({"name": 5})", "Field name"},
      {R"({"model": null})", "Field model"}, {"", "JSON"}, {"[]", "object"},
      {R"({"comment": "日"})", "Field comment"}, {"{\"name\": \"x\"", "JSON"},
      {R"({"funName": "a\nb"})", "Field funName"},
      {R"({"railColor": true})", "Field railColor"},
      {R"({"arenaLord": "yes"})", "Field arenaLord"},
      {R"({"arenaLord": 40000})", "Field arenaLord"},
      {R"({"levels": {"2": {}}})", "Field levels.2"},
      {R"({"format": 1, "nmae": "x"})", "bot.json: Field nmae"},
      {R"({"format": "1"})", "Field format"},
      {R"({"format": -1})", "Field format"},
      {R"({"format": 1.5})", "Field format"},
      {R"({"levels": {"1": []}})", "Field levels.1"},
      {R"({"levels": {"5": {"CHARACTERISTIC_NAME": 1}}})",
       "Field levels.5.CHARACTERISTIC_NAME"},
      {R"({"levels": {"5": {"CHARACTERISTIC_JUMPER": [1]}}})",
       "Field levels.5.CHARACTERISTIC_JUMPER"},
      {R"({"weaponWeights": {"#define W_SHOTGUN": 1}})",
       "Field weaponWeights.#define W_SHOTGUN"},
      {R"({"itemWeights": {"W_GRAPPLE": 1}})", "Field itemWeights.W_GRAPPLE"},
      {R"({"chats": {"game_leave": []}})", "Field chats.game_leave"},
      {R"({"chats": {"game_exit": "x"}})", "Field chats.game_exit"},
      {R"({"chats": {"game_exit": ["x", "\u0100"]}})",
       "Field chats.game_exit[1]"},
      {R"({"levels": {"1": {"CHARACTERISTIC_JUMPER": 1e999}}})", "JSON"},
      {"{\"name\": \"\xE4\"}", "JSON"}, {"{\"chats\": " + deep, "nested"},
      {std::string(kMaxDocumentBytes + 1, ' '), "larger"}};
  // clang-format on
  for (const auto& [json, message] : cases) {
    const Result<BotDocument> document = Read(json);
    ASSERT_FALSE(document) << json.substr(0, 100);
    EXPECT_THAT(Describe(document.error()), HasSubstr(message));
  }
}

TEST(BotDocument, OfANewerVersionIsReadAsFarAsItIsKnown) {
  Notes notes;
  const Result<BotDocument> document = ReadBotDocument(
      R"({"format": 2, "name": "Newt", "tags": ["a"], "arenaLord": 1,
          "levels": {"3": {}, "4": {"CHARACTERISTIC_FLY": 1,
                                    "CHARACTERISTIC_JUMPER": 0.5}},
          "chats": {"game_pause": ["x"], "game_exit": ["bye"]}})",
      "new.json", notes);
  const Bot bot = Checked(document);
  EXPECT_EQ(bot.Name(), "Newt");
  EXPECT_EQ(bot.Text(Id(10)), "1");
  EXPECT_EQ(bot.Text(Id(409)), "0.5");
  EXPECT_THAT(bot.ChatLines(TypeAt(1)), ElementsAre("bye"));
  const auto is_about = [](const std::string& text) {
    return ::testing::ResultOf([](const Note& note) { return Describe(note); },
                               ::testing::StartsWith("new.json: " + text));
  };
  EXPECT_THAT(
      notes.list(),
      ElementsAre(is_about("A newer Fragsmith wrote this: it has format 2, and "
                           "this one knows 1."),
                  is_about("Field chats.game_pause: "),
                  is_about("Field levels.3: "),
                  is_about("Field levels.4.CHARACTERISTIC_FLY: "),
                  is_about("Field tags: there is no such key. It is left "
                           "out.")));
  // A known key has the type that is known.
  const Result<BotDocument> wrong =
      ReadBotDocument(R"({"format": 2, "name": {}})", "", notes);
  ASSERT_FALSE(wrong);
  EXPECT_THAT(wrong.error().what, HasSubstr("Field name"));
}

}  // namespace
}  // namespace fragsmith
