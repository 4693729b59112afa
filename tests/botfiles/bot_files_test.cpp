// What holds for all bot files.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "model/characteristic_catalogue.h"
#include "support/random.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

TEST(HeaderComment, SaysWhatIsKnown) {
  const std::string rule = "//" + std::string(75, '=') + "|";
  const std::tuple<Author, std::string, std::string> cases[] = {
      {{}, "", "//|//|"},
      {{"", "a@b", "http://c"}, "", "//|//|"},
      {{"Ann", "", ""}, "A \xFC word", "//>By: Ann|//>A \xFC word|"},
      {{"Ann", "a@b", ""}, "", "//>By: Ann, a@b|//|"},
      {{"Ann", "", "http://c"}, "", "//>By: Ann, http://c|//|"},
      {{"Ann", "a@b", "http://c"}, "", "//>By: Ann, a@b, http://c|//|"}};
  for (const auto& [author, comment, lines_3_and_4] : cases) {
    Bot bot;
    Set(bot, kCommentField, comment);
    Set(bot, kVersionMajorField, "1.5");
    EXPECT_EQ(HeaderComment(bot, author),
              GameLines(rule + "//>Bot>version 1.5.0|" + lines_3_and_4 +
                        "//>Made with vexlor's Fragsmith v. 0.97|"
                        "//>https://fragsmith.example  e-mail: "
                        "fragsmith@example.org|" +
                        rule));
  }
}

struct Format {
  std::function<std::string(const Bot&)> write;
  std::function<ReadReport(std::string_view, Bot&)> read;
};

const std::vector<Format>& Formats() {
  static const std::vector<Format> formats = {
      {[](const Bot& bot) { return WriteCharacteristicFile(bot, {}); },
       [](std::string_view bytes, Bot& bot) {
         return ReadCharacteristicFile(bytes, "f", ReadIdentity::kYes, bot);
       }},
      {[](const Bot& bot) { return WriteWeaponWeightFile(bot, {}); },
       [](std::string_view bytes, Bot& bot) {
         return ReadWeaponWeightFile(bytes, "f", bot);
       }},
      {[](const Bot& bot) { return WriteItemWeightFile(bot, {}); },
       [](std::string_view bytes, Bot& bot) {
         return ReadItemWeightFile(bytes, "f", bot);
       }},
      {[](const Bot& bot) { return WriteDescriptionFile(bot, {}); },
       [](std::string_view bytes, Bot& bot) {
         return ReadDescriptionFile(bytes, "f", bot);
       }}};
  return formats;
}

int Draw(const RandomSource& random, int count) {
  return static_cast<int>(random() * count);
}

/// A number, or letters of the code page that no format gives a meaning.
Value RandomValue(const RandomSource& random, int kinds = 3) {
  const int kind = Draw(random, kinds);
  if (kind == 1) return static_cast<double>(Draw(random, 100));
  if (kind == 2) return static_cast<float>(Draw(random, 100'000)) / 1000.0F;
  std::string text = "n";
  for (int length = Draw(random, 12); length > 0; --length) {
    const int letter = 0x30 + Draw(random, 256 - 0x30);
    if (letter != ';' && letter != '\\') text += static_cast<char>(letter);
  }
  return text;
}

TEST(BotFiles, AreWrittenAgainByteForByte) {
  const RandomSource random = SeededRandom(6);
  for (int round = 0; round < 100; ++round) {
    Bot bot;
    for (const int field : {0, 1, 2, 5, 6}) {
      Set(bot, Id(field), RandomValue(random, 1));
    }
    Set(bot, kRailColorField, RandomValue(random));
    Set(bot, kArenaLordField, 1.0 * Draw(random, 2));
    for (int index = 2; index <= 80; ++index) {
      for (const Level level : kLevels) {
        if (index > 30) continue;
        Set(bot, ParameterId(level, index), RandomValue(random));
      }
      if (index > 30) Set(bot, Id(index), RandomValue(random));
    }
    for (const Format& format : Formats()) {
      const std::string bytes = format.write(bot);
      Bot read;
      Set(read, kNameField, bot.Name());
      EXPECT_TRUE(format.read(bytes, read).plain_values.empty()) << bytes;
      ASSERT_EQ(format.write(read), bytes);
      // Part of the line ends become LF, or CR alone.
      for (const char unwanted : {'\r', '\n'}) {
        std::string other = bytes;
        other.erase(std::remove(other.begin() + 700, other.end(), unwanted),
                    other.end());
        EXPECT_TRUE(format.read(other, read).plain_values.empty()) << other;
        ASSERT_EQ(format.write(read), bytes);
      }
    }
  }
}

TEST(BotFiles, AreReadWithTheBlanksThatOnlyTheGameTakesForSome) {
  Bot bot;
  Set(bot, kNameField, "Nix\xA0y");
  for (const Level level : kLevels) Set(bot, ParameterId(level, 6), 240.0);
  for (int index = 31; index <= 80; ++index)
    Set(bot, Id(index), static_cast<float>(index) + 0.25F);
  for (const std::string blank :
       {"\xA0", "\xC2\xA0", "\xE2\x80\x8B", "\x1A", "\xA0 \xA0"}) {
    for (std::size_t at = 0; at < 3; ++at) {
      const Format& format = Formats()[at];
      std::string bytes;
      for (const char letter : format.write(bot)) {
        bytes += letter == '\t' ? blank : std::string(1, letter);
        if (letter == '\n') bytes += blank;
      }
      Bot read;
      for (const auto& [id, value] : format.read(bytes, read).plain_values) {
        read.Put(id, value);
      }
      Bot expected;
      EXPECT_TRUE(
          format.read(format.write(bot), expected).plain_values.empty());
      EXPECT_EQ(format.write(read), format.write(expected)) << bytes;
    }
  }
  // What a person sees is kept, whatever the game makes of it.
  Bot read;
  for (const auto& [text, value] : {std::pair("\x93male\x94", "\x93male\x94"),
                                    {"\xC9ric", "\xC9ric"},
                                    {"\"a\xA0z\"", "a\xA0z"}}) {
    const std::string line =
        "CHARACTERISTIC_GENDER\t\t\t\t\t" + std::string(text);
    EXPECT_TRUE(ReadCharacteristicFile(line, "f", ReadIdentity::kYes, read)
                    .Gives(kGenderField));
    EXPECT_EQ(read.Text(kGenderField), value);
  }
  for (const char* const number : {"\x93"
                                   "0.7\x94",
                                   "\x96 0.7"}) {
    const std::string line =
        "CHARACTERISTIC_CHAT_MISC\t\t\t\t\t" + std::string(number);
    EXPECT_TRUE(ReadCharacteristicFile(line, "f", ReadIdentity::kYes, read)
                    .Gives(Id(33)));
    EXPECT_EQ(read.Text(Id(33)), "0.7");
  }
}

TEST(BotFiles, SurviveHugeAndBinaryInput) {
  const RandomSource random = SeededRandom(7);
  std::string noise;
  while (noise.size() < 1'000'000) {
    noise += static_cast<char>(Draw(random, 256));
  }
  for (const std::string& bytes :
       {noise, Repeated("\n", "", 1), Repeated("\""), Repeated("/*"),
        Repeated("C", "skill 1\nCHARACTERISTIC_"),
        Repeated("CHARACTERISTIC_AIM_SKILL_"),
        Repeated("9", "skill 1\nCHARACTERISTIC_JUMPER\t\t\t\t\t\t0."),
        Repeated("skill 2\nCHARACTERISTIC_JUMPER\xE4\n", "", 1),
        Repeated("#define ", "#define W_RAILGUN\t\t\t\t"),
        Repeated("#define W_RAILGUN\xE4\r", "", 1),
        Repeated(" funname color model arenalord "),
        Repeated("arenalord\xE4\r", "", 1)}) {
    for (const Format& format : Formats()) {
      Bot bot;
      std::size_t note_bytes = 0;
      const ReadReport report = format.read(bytes, bot);
      for (const Note& note : report.notes.list()) {
        note_bytes += note.text.size();
      }
      EXPECT_LT(note_bytes, 300'000U) << bytes.substr(0, 30);
      EXPECT_FALSE(format.write(bot).empty());
    }
  }
}

}  // namespace
}  // namespace fragsmith
