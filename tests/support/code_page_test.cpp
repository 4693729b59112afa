#include "support/code_page.h"

#include <gtest/gtest.h>

namespace fragsmith {
namespace {

TEST(CodePage, BringsEveryByteThereAndBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(GameTextFromUtf8(Utf8FromGameText(all)), all);
  EXPECT_EQ(Utf8FromGameText("\x80\x8A\x99\x9F\xE4"), "€Š™Ÿä");
  EXPECT_EQ(Utf8FromGameText("\x81\x9D"), "\xC2\x81\xC2\x9D");
  EXPECT_EQ(ShownText(std::string(60, '\xE4')).size(), 120U);
  EXPECT_EQ(ShownText(std::string(1000, 'x')), std::string(60, 'x') + "...");
}

TEST(CodePage, RefusesWhatItLacks) {
  // No such letters, the unused place of the euro sign, then broken UTF-8: cut
  // off, not begun, too long for its character, half a pair.
  for (const char* utf8 :
       {"日", "😀", "e\xCC\x81", "\xC2\x80", "a\xC3", "\xE2\x82", "\xE4 b",
        "\x80", "\xC0\x8A", "\xE0\x80\x8A", "\xED\xA0\x80"}) {
    EXPECT_EQ(GameTextFromUtf8(utf8), std::nullopt) << utf8;
  }
}

}  // namespace
}  // namespace fragsmith
