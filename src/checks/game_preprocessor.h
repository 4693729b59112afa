#ifndef FRAGSMITH_CHECKS_GAME_PREPROCESSOR_H_
#define FRAGSMITH_CHECKS_GAME_PREPROCESSOR_H_

#include <cstddef>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/file_findings.h"
#include "checks/game_lexer.h"

namespace fragsmith {

/// Gives the bytes of the game's file botfiles/PATH, such as "inv.h" or
/// "bots/default_c.c"; nothing when there is none. PATH has "/" and is spelt
/// as the bot's file spells it; case should not count.
using IncludeLookup =
    std::function<std::optional<std::string>(std::string_view path)>;

/// A file of a bot, by the name that findings show (UTF-8) and the path below
/// botfiles/ by which the game knows it.
struct GameFile {
  std::string name;
  std::string game_path;
  std::string bytes;
};

/// A path as the game looks it up: "/" only, none doubled or in front.
std::string NormalGamePath(std::string_view path);

/// The tokens of a .c file with what it includes and with its macros replaced,
/// as the game gets them. What the game complains of becomes a finding. An
/// error in the middle of looking ahead is forgotten by the game, so a file
/// with errors may well be read to its end; only the reader's result tells.
class GameSource {
 public:
  /// File, look-up and findings must outlive the source.
  GameSource(const GameFile& file, const IncludeLookup& game,
             FileFindings& findings);

  /// The next token; false at the end and at an error.
  bool Read(GameToken& token);

  /// The next Read() gives this token.
  void Unread(GameToken token);

  /// Read() with a finding where there is nothing more.
  bool ReadAny(GameToken& token);
  /// Passes over a block in braces of which the first was read; false, with a
  /// finding, where its end is missing.
  bool SkipBlock();
  /// Reads what must be this name or sign; a finding otherwise.
  bool Expect(std::string_view word);
  bool ExpectString(GameToken& token);
  enum class Numbers { kAny, kWhole };
  bool ExpectNumber(Numbers numbers, GameToken& token);

  /// Reads the word when it stands there. An error swallows itself here.
  bool Take(std::string_view word);

  /// A finding at the token, or, where a macro of the bot's own file has
  /// brought the game's file to stumble, at that macro.
  void Complain(std::string_view id, const GameToken& token, std::string text);
  void Warn(std::string_view id, const GameToken& token, std::string text);

  /// The macro of the bot's own file that was replaced last, since
  /// ForgetMacro().
  const std::string& last_macro() const { return last_macro_; }
  void ForgetMacro();

  /// True once the file has proved to keep the game busy for ever.
  bool is_endless() const { return is_endless_; }

 private:
  struct Script {
    std::string path;
    std::string bytes;
    std::optional<GameLexer> lexer;
    int file = 0;
  };

  struct Macro {
    int parameter_count = 0;
    std::vector<std::string> parameters;
    std::vector<GameToken> body;
    GameToken name;
  };

  /// An open #if: whether what follows is passed over, and whether it is its
  /// #else already.
  struct Condition {
    bool is_skipped;
    bool is_else;
    const Script* script;
  };

  bool ReadRaw(GameToken& token);
  bool ReadRestOfLine(GameToken& token);
  bool Join(GameToken& token);
  void CloseConditions(const Script& script);
  bool Count();

  bool Directive();
  bool Dollar();
  bool Include();
  bool Define();
  bool DefineParameters(Macro& macro);
  bool Undefine();
  bool IfDefined(bool wanted);
  bool If(bool is_elif);
  bool Else();
  bool EndIf();

  bool Expand(const GameToken& name, const Macro& macro);
  bool ReadArguments(const GameToken& name, const Macro& macro,
                     std::vector<std::vector<GameToken>>& arguments);
  bool Merge(std::vector<GameToken>& tokens);

  enum class Extent { kLine, kBrackets };
  bool Evaluate(Extent extent, bool is_float, double& value);
  bool EvaluateName(const GameToken& name, std::vector<GameToken>& tokens);
  void PutNumber(double value, bool is_float, const GameToken& where);

  GameToken Here() const;
  void Report(std::string_view id, Severity severity, const GameToken& token,
              std::string text);
  void ReportLexer(GameLexer::Outcome outcome, const GameToken& token);
  void ReportOddity(const GameToken& token);

  const GameFile& file_;
  const IncludeLookup& game_;
  FileFindings& findings_;

  std::vector<std::string> file_names_;
  std::list<Script> scripts_;  ///< The innermost is the last.
  std::deque<GameToken> unread_;
  std::map<std::string, Macro, std::less<>> macros_;
  std::vector<Condition> conditions_;
  int skipped_ = 0;
  int depth_ = 0;
  std::size_t work_ = 0;
  bool is_endless_ = false;
  bool has_complained_ = false;
  std::string last_macro_;
  GameToken last_macro_name_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_GAME_PREPROCESSOR_H_
