#include "support/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/notes.h"

namespace fragsmith {
namespace {

TEST(LineReader, KnowsAllLineEnds) {
  const std::string odd("\x1A\0b", 3);
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
      {"\n\r\r\n", {"", "", ""}},
      {"a\r", {"a"}},
      {"", {}},
      {odd + "\nc", {odd, "c"}}};
  for (const auto& [bytes, expected] : cases) {
    std::vector<std::string> lines;
    LineReader reader(bytes);
    while (const auto line = reader.Next()) {
      lines.emplace_back(*line);
      EXPECT_EQ(reader.number(), lines.size());
    }
    EXPECT_EQ(lines, expected);
  }
}

TEST(Text, ChangesCaseByTheCodePage) {
  EXPECT_EQ(ToLower("AZ[ \xC4\xD7\xDE\xDF\x8A\x8C\x8E\x9F"),
            "az[ \xE4\xD7\xFE\xDF\x9A\x9C\x9E\xFF");
  int pairs = 0;
  for (int code = 0; code < 256; ++code) {
    const char letter = static_cast<char>(code);
    if (ToLower(letter) == letter) continue;
    ++pairs;
    EXPECT_EQ(ToUpper(ToLower(letter)), letter) << code;
  }
  EXPECT_EQ(pairs, 26 + 30 + 4);
}

TEST(Notes, KeepsTheFirstAndCountsTheRest) {
  Notes notes;
  for (std::size_t line = 1; line <= Notes::kMax + 5; ++line) {
    notes.Add({"f.c", line, "odd"});
  }
  Notes more;
  more.Append(notes);
  more.Add({"", 0, "late"});
  EXPECT_EQ(more.left_out(), 6U);
  EXPECT_EQ(Describe(more.list().back()), "f.c:1000: odd");
}

}  // namespace
}  // namespace fragsmith
