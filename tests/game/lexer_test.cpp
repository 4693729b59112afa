#include "game/lexer.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "game/preprocessor.h"

namespace fragsmith {
namespace {

std::string Shown(const GameToken& token) {
  switch (token.kind) {
    case GameToken::Kind::kString:
      return '"' + token.text + '"';
    case GameToken::Kind::kLiteral:
      return "'" + token.text + "'";
    default:
      return token.text;
  }
}

TEST(GameLexer, TakesTokensApart) {
  const struct {
    std::string_view bytes;
    std::string_view tokens;
  } cases[] = {
      {"a_1 2b", "a_1 2 b"},
      {"1.5.2 .5 . 5.", "1.5.2 .5 . 5."},
      {"0x1fg 0b12 07L 1uul 5lu", "0x1f g 0b1 2 07 1 ul 5"},
      {">>=>=>## #$...", ">>= >= > ## # $ ..."},
      {"\"a\" // b\n\t/* c */ \"d\"\n\"e\"", "\"ade\""},
      {"'a' 'b'", "'a' 'b'"},
      {R"("a\\b\"\x41\65\n")", "\"a\\b\"AA\n\""},
      {R"("ab\qcd" "e")", "\"ab\""},
      {R"("a\300b")", "\"a\xFF\x62\""},
      {R"("\xZZ b\x4g")", "\"\xFF bP\""},
      {"\xEF\xBB\xBF a \x01 b \x7F", "a b <unreadable>"},
      {"a /* b", "a"},
      {std::string_view("a\0b", 3), "a"},
      {"a @ b", "a <unreadable>"},
      {"\"a\nb", "<line end> b"},
      {"\"a", "<open>"},
      {"\"a\\\nb", "<line end> b"},
      {"it's", "it <open>"},
  };
  for (const auto& [bytes, tokens] : cases) {
    SCOPED_TRACE(bytes);
    GameLexer lexer(bytes);
    std::string got;
    GameToken token;
    bool is_over = false;
    while (!is_over) {
      const GameLexer::Outcome outcome = lexer.Next(token);
      is_over = outcome == GameLexer::Outcome::kEnd;
      std::string one;
      if (outcome == GameLexer::Outcome::kToken) one = Shown(token);
      if (outcome == GameLexer::Outcome::kLineEndInString) one = "<line end>";
      if (outcome == GameLexer::Outcome::kOpenString) one = "<open>";
      if (outcome == GameLexer::Outcome::kUnreadable) {
        one = "<unreadable>";
        // The lexer goes no further.
        EXPECT_EQ(lexer.Next(token), outcome);
        is_over = true;
      }
      got += (got.empty() || one.empty() ? "" : " ") + one;
    }
    EXPECT_EQ(got, tokens);
  }
}

TEST(GameLexer, WorksNumbersOut) {
  using Oddity = GameToken::Oddity;
  const struct {
    std::string_view bytes;
    double number;
    bool is_whole;
    Oddity oddity;
  } cases[] = {
      {"250", 250, true, Oddity::kNone},
      {"0", 0, true, Oddity::kNone},
      {"07", 7, true, Oddity::kNone},
      {"0240", 160, true, Oddity::kOctal},
      {"08", 8, true, Oddity::kNone},
      {"00.5", 0.5, false, Oddity::kNone},
      {".25", 0.25, false, Oddity::kNone},
      {"0x1F", 31, true, Oddity::kNone},
      {"0b101", 5, true, Oddity::kNone},
      {"7L", 7, true, Oddity::kNone},
      {"1.", -3.8, false, Oddity::kPointAtEnd},
      {"1.5.2", 1.5, false, Oddity::kTwoPoints},
  };
  for (const auto& [bytes, number, is_whole, oddity] : cases) {
    SCOPED_TRACE(bytes);
    GameLexer lexer(bytes);
    GameToken token;
    ASSERT_EQ(lexer.Next(token), GameLexer::Outcome::kToken);
    EXPECT_DOUBLE_EQ(token.number, number);
    EXPECT_EQ(token.is_whole, is_whole);
    EXPECT_EQ(token.oddity, oddity);
  }
}

TEST(GameLexer, CountsLinesAndKeepsLimits) {
  GameLexer lexer("a\n/*\n*/ b \"c\nd");
  GameToken token;
  lexer.Next(token);
  EXPECT_EQ(token.lines_crossed, 0);
  lexer.Next(token);
  EXPECT_EQ(token.line, 3);
  EXPECT_EQ(token.lines_crossed, 2);
  EXPECT_EQ(lexer.Next(token), GameLexer::Outcome::kLineEndInString);
  EXPECT_EQ(token.line, 3);
  // The lines inside a text are none in front of it.
  lexer = GameLexer("\"a\"\n\"b\" c");
  lexer.Next(token);
  EXPECT_EQ(token.lines_crossed, 0);
  lexer.Next(token);
  EXPECT_EQ(token.lines_crossed, 0);

  using Outcome = GameLexer::Outcome;
  const auto read = [&](const std::string& bytes) {
    return GameLexer(bytes).Next(token);
  };
  const auto letters = [](std::size_t count) {
    return std::string(count, 'a');
  };
  EXPECT_EQ(read('"' + letters(1020) + '"'), Outcome::kToken);
  EXPECT_EQ(read('"' + letters(1021) + '"'), Outcome::kStringTooLong);
  EXPECT_EQ(read(letters(1023)), Outcome::kToken);
  EXPECT_EQ(read(letters(1024)), Outcome::kNameTooLong);
  EXPECT_EQ(read(std::string(1022, '1')), Outcome::kToken);
  EXPECT_EQ(read(std::string(1023, '1')), Outcome::kNumberTooLong);
}

/// What is read up to an error or the end, and the findings' ids.
std::string Preprocessed(std::string_view bytes) {
  const std::map<std::string, std::string, std::less<>> others = {
      {"one.h", "#define ONE 1"}, {"again.h", "#include \"again.h\"\nx"}};
  const IncludeLookup game =
      [&](std::string_view path) -> std::optional<std::string> {
    const auto found = others.find(path);
    if (found == others.end()) return std::nullopt;
    return found->second;
  };
  const GameFile file = {"file", "bots/file", std::string(bytes)};
  Complaints findings;
  GameSource source(file, game, findings);
  std::string text;
  GameToken token;
  while (source.Read(token)) text += Shown(token) + " ";
  for (const Complaint& finding : findings.list()) {
    text += std::string(finding.id) + "@" + std::to_string(finding.place.line) +
            " ";
  }
  return text.empty() ? text : text.substr(0, text.size() - 1);
}

TEST(GameSource, FollowsTheGamesPreprocessor) {
  const struct {
    std::string_view bytes;
    std::string_view tokens;
  } cases[] = {
      {"#include \"one.h\"\nONE", "1"},
      {"#include <one.h>\nONE", "1"},
      {"#include \"one\" \".h\"\nONE", "1"},
      {"#include \"no.h\"\na", "include-missing@1"},
      {"#include \"again.h\"\na", "x a includes-itself@1"},
      // The last #define of an included file goes on behind the #include.
      {"#include \"one.h\" 2\nONE", "1 2 include-with-more@1"},
      {"#define A B\n#define B 5\nA", "5"},
      {"#define A 1 \\\n2\nA", "1 2"},
      {"#define A(x,y) y x\nA(1, 2 3)", "2 3 1"},
      {"#define A(x) #x\nA(m n)", "\"mn\""},
      {"#define A(x) a##x\nA(b)", "ab"},
      {"#define A (1)\nA", "( 1 )"},
      {"#define A A 1\nA", "1 defined-by-itself@1"},
      {"#define A\na A b", "a empty-macro@2"},
      {"#define A 1\n#define A 2\nA", "2 defined-twice@2"},
      {"#define A 1\n#undef A\nA", "A"},
      {"#define A \"b\"\nx \"a\" A \"c\"", "x \"abc\""},
      // Two texts that are one text in two lines, and what stands behind it.
      {"#define A \"b\"\n\"c\" d\nA", "\"bc\" d"},
      {"#if 0\na\n#else\nb\n#endif\nc", "b c"},
      {"#if 1\na\n#else\nb\n#endif\nc", "a c"},
      {"#ifdef X\n#if NO\n#endif\na\n#endif\nb", "b"},
      {"#define X\n#ifndef X\na\n#elif defined(X)\nb\n#endif", "b"},
      {"#if 7 / 2 == 3 && (1 | 2) == 3 && -1 < 0 && (0 ? 0 : 1)\na\n#endif",
       "a"},
      {"#if 1\na", "a endif-missing@1"},
      {"a\n#endif", "a condition-without-if@2"},
      // A text looks ahead, and what that comes across counts for it.
      {"#ifdef X\n\"a\"\n#endif\nb", "\"a\" b"},
      {"\"a\"\n#foo\nb", "\"a\" b unknown-command@2"},
      {"a\n#foo\nb", "a unknown-command@2"},
      {"$evalint(7 / 2) $evalfloat(1.0 / 4) $evalint(1 - 3)", "3 0.25 - 2"},
      {"$evalint(1 / 0)", "cannot-calculate@1"},
      {"a $ b", "a lone-dollar@1"},
      // In the game these never end.
      {"#define A B\n#define B A\na A", "a endless-file@3"},
      {"#define A B B B B\n#define B A A A A\na A", "a endless-file@3"},
  };
  for (const auto& [bytes, tokens] : cases) {
    SCOPED_TRACE(bytes);
    EXPECT_EQ(Preprocessed(bytes), tokens);
  }
}

TEST(GameSource, BearsDeepAndLongFiles) {
  const auto repeat = [](std::string_view text, int count) {
    std::string all;
    for (; count > 0; --count) all += text;
    return all;
  };
  Preprocessed(repeat("\"a\"\n#pragma\n", 20'000));
  Preprocessed("#if " + repeat("(", 100'000) + "1");
  Preprocessed("#if " + repeat("- ", 100'000) + "1");
  Preprocessed(repeat("#if 1\n", 100'000));
  Preprocessed("#define A(x) x x x x x x x x\nA(" + repeat("A(", 10'000) + "1");
  std::string doubling = "#define A0 a a\n";
  for (int step = 1; step < 64; ++step) {
    const std::string last = "A" + std::to_string(step - 1);
    doubling += "#define A" + std::to_string(step);
    doubling.append(" ").append(last).append(" ").append(last).append("\n");
  }
  EXPECT_TRUE(Preprocessed(doubling + "A63").ends_with("endless-file@65"));
  std::string parameters = "#define A(a0";
  for (int count = 1; count < 100'000; ++count) {
    parameters.append(",a").append(std::to_string(count));
  }
  EXPECT_EQ(Preprocessed(parameters + ") 1\nA(1)"),
            "macro-parameters@1 macro-parameters@2");
  // What leaves nothing behind costs as much.
  EXPECT_TRUE(Preprocessed("#define A(a) " + repeat("a ", 100'000) + "1\n" +
                           repeat("A()\n", 10'000))
                  .starts_with("1 1 1 endless-file@"));
  const std::string texts =
      Preprocessed("#define A(a) " + repeat("#a ", 9'000) + "\nA(" +
                   repeat("abc ", 100'000) + ")");
  EXPECT_LT(texts.size(), 10'000'000U);
}

TEST(GameSource, CountsWhatIncludesCost) {
  for (const bool is_there : {true, false}) {
    std::string bytes;
    for (int count = 0; count < 100'000; ++count) {
      // A text looks ahead and forgets what it finds there.
      bytes += "\"a\"\n#include \"small.h\"\nb\n";
    }
    int reads = 0;
    const IncludeLookup game = [&](std::string_view) {
      ++reads;
      return is_there ? std::optional<std::string>("c") : std::nullopt;
    };
    Complaints findings;
    const GameFile file = {"x_c.c", "bots/x_c.c", bytes};
    GameSource source(file, game, findings);
    GameToken token;
    while (source.Read(token)) {
    }
    EXPECT_LE(reads, 100) << is_there;
    EXPECT_TRUE(source.is_endless());
  }
}

}  // namespace
}  // namespace fragsmith
