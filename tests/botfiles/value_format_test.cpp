#include "botfiles/value_format.h"

#include <gtest/gtest.h>

#include "botfiles/game_text.h"

namespace fragsmith {
namespace {

TEST(FormatValue, FollowsTheFilesOwnNumberForm) {
  // Below 0 the sign goes and a "0" comes; a text that reads as a number
  // counts as one.
  // clang-format off
  const struct {
    Value value;
    std::string_view text;
  } cases[] = {
      {{}, "0.0"}, {-0.0, "0.0"}, {1.0, "1.0"}, {1.0F, "1.0"}, {0.5, "0.5"},
      {0.05, "0.05"}, {1.5, "1.5"}, {0.25F, "0.25"}, {400.0, "400"},
      {-0.5, "0.5"}, {-2.0, "02"}, {-1.0, "01"}, {-10.25, "010.25"},
      {0.1F, "0.1"}, {1.0F / 3, "0.3333333"}, {2.0 / 3, "0.666666666666667"},
      {1234567.8F, "1234568"}, {1e20, "100000000000000000000"},
      {1e-10, "0.0000000001"}, {0.9999999999999999, "01"}, {"123", "123"},
      {" 007.50", "7.5"}, {"0", "0.0"}, {"+1", "1.0"}, {"-3", "03"},
      {"a\"b", "\"a\"b\""}, {"1e5", "\"1e5\""}, {"-", "\"-\""}, {"", "\"\""}};
  // clang-format on
  for (const auto& [value, text] : cases) EXPECT_EQ(FormatValue(value), text);
}

TEST(NumberForFiles, TakesWhatComesBackFromAFile) {
  const std::pair<std::string, double> good[] = {{"0", 0},
                                                 {"-0", 0},
                                                 {" 1. ", 1},
                                                 {".35", 0.35},
                                                 {"+5.1", 5.1},
                                                 {"0.3500", 0.35},
                                                 {"1.0000", 1},
                                                 {"9999.999", 9999.999},
                                                 {"123456789", 123456789}};
  for (const auto& [text, number] : good) {
    EXPECT_EQ(NumberForFiles(text).value_or(-1), number) << text;
  }
  for (const std::string text : {"", "No", "0,5", "1e3", "0x1", "1 2"}) {
    EXPECT_EQ(NumberForFiles(text).error().what,
              "A number is wanted here, such as 0.35 or 120.");
  }
  EXPECT_EQ(NumberForFiles(std::string(400, '9')).error().what,
            "The number is too large.");
  for (const std::string text : {"-1", "-0.25"}) {
    EXPECT_EQ(NumberForFiles(text).error().what,
              "The files hold no number below 0.");
  }
  for (const std::string text :
       {"0.1234", "12345.678", "12345678901234567", "0.9999999999999999"}) {
    EXPECT_FALSE(NumberForFiles(text)) << text;
  }
}

TEST(CleanValue, TakesNumbersAndTextsApart) {
  const std::string huge(40, '9');
  const std::string beyond(400, '9');
  // clang-format off
  const std::pair<std::string, Value> cases[] = {
      {".25", 0.25F}, {" .5", 0.5F}, {"2.5 \t", 2.5F}, {"\t400", 400.0},
      {"+3", 3.0}, {"-2", -2.0}, {"2.", 2.0F}, {"0.1", 0.1F}, {"1.18", 1.18F},
      {"8.553", 8.553F}, {"007.050", 7.05F}, {"0.001", 0.001F},
      // Four digits behind the point are dropped; the sign is not theirs.
      {"0.1234", 0.0F}, {"12.9999", 12.0F}, {"1.0000", 1.0F}, {"-0.5", 0.5F},
      {"-.5", 0.5F}, {"-2.5", -1.5F},
      {huge, 1e40}, {huge + ".5", huge + ".5"}, {beyond, beyond},
      // What begins with a point gets its 0, also where it is no number.
      {". 5", "0. 5"}, {".5.", "0.5."}, {".x", ".x"}, {"2,5", "2,5"},
      {"1e3", "1e3"}, {"", ""}, {"\"bots/nix_w.c\";", "bots/nix_w.c"},
      {"nix;", "nix"}, {"nix\";;", "nix\";"}, {"\"\"nix\"\"", "\"nix\""},
      {"\";", ""}, {"\"", ""}, {";\"", ";"}, {" \"nix\"", " \"nix"},
      {"\"nix\" ", "nix\" "}, {"\"0.5\"", "0.5"}, {"\x80\xFF", "\x80\xFF"}};
  // clang-format on
  for (const auto& [text, value] : cases) EXPECT_EQ(CleanValue(text), value);
}

TEST(CleanValue, ReadsEveryShortDecimalAsItIsWritten) {
  for (int number = 0; number < 2'000'000; number += 7) {
    const std::string text = std::to_string(number / 1000) + "." +
                             std::to_string(1000 + number % 1000).substr(1);
    const Value value = CleanValue(text);
    ASSERT_EQ(ToNumber(value), std::stod(text));
    ASSERT_EQ(ToNumber(CleanValue(FormatValue(value))), std::stod(text));
    ASSERT_TRUE(IsSameValue(value, PlainValue(text))) << text;
  }
}

}  // namespace
}  // namespace fragsmith
