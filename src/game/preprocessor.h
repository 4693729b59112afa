#ifndef FRAGSMITH_GAME_PREPROCESSOR_H_
#define FRAGSMITH_GAME_PREPROCESSOR_H_

#include <cstddef>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/complaints.h"
#include "game/lexer.h"

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

/// A macro that the bot's own file defines.
struct OwnMacro {
  std::string name;
  std::string text;  ///< Its words with a blank between them.
  TextSpan value;    ///< Where these stand; empty where there are none.
};

/// The tokens of a .c file with what it includes and with its macros replaced,
/// as the game gets them. What the game complains of becomes a finding. An
/// error in the middle of looking ahead is forgotten by the game, so a file
/// with errors may well be read to its end; only the reader's result tells.
class GameSource {
 public:
  /// File, look-up and findings must outlive the source.
  GameSource(const GameFile& file, const IncludeLookup& game,
             Complaints& findings);

  /// Of the file itself.
  std::string_view bytes() const { return file_.bytes; }

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
  bool Expect(std::string_view word, GameToken* expected = nullptr);
  /// The same for the "{" behind a token, which is told of where that stands.
  bool ExpectBrace(const GameToken& last, GameToken* brace = nullptr);
  bool ExpectString(GameToken& token);
  enum class Numbers { kAny, kWhole };
  bool ExpectNumber(Numbers numbers, GameToken& token);

  /// Reads the word when it stands there. An error swallows itself here.
  bool Take(std::string_view word, GameToken* taken = nullptr);

  /// A finding at the token, or, where a macro of the bot's own file has
  /// brought the game's file to stumble, at that macro.
  void Complain(std::string_view id, const GameToken& token, std::string text);
  void Warn(std::string_view id, const GameToken& token, std::string text);

  /// A macro that the game looks for and does not find.
  void ComplainOfMacro(const GameToken& name);
  /// A finding at the macro of the bot's own file that was replaced last, when
  /// its value is no plain number: then it is what made the reader stumble.
  bool ComplainOfMacroValue();
  /// The last of these; empty without one.
  const std::string& missing_macro() const { return missing_macro_; }

  /// Where the token is a text that the game takes out of a part that it passes
  /// over, says so and is true.
  bool ComplainOfLeak(const GameToken& token);

  /// What is replaced from here on may make the reader stumble.
  void ForgetMacro();
  /// What stands in the line of a token of the bot's own file.
  std::string_view LineOf(const GameToken& token) const;

  /// Those that hold now, by their names.
  std::vector<OwnMacro> OwnMacros() const;

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
    /// Their places in the brackets, by their names.
    std::map<std::string, std::size_t, std::less<>> parameters;
    std::vector<GameToken> body;
    GameToken name;
  };

  /// An open #if: whether what follows is passed over, and whether it is its
  /// #else already.
  struct Condition {
    bool is_skipped = false;
    bool is_else = false;
    const Script* script = nullptr;
    GameToken begin;  ///< Its line and file.
  };

  bool ReadRaw(GameToken& token);
  bool ReadRestOfLine(GameToken& token);
  bool Join(GameToken& token);
  void OpenCondition(bool is_skipped, const GameToken& begin);
  void CloseCondition();
  void CloseConditions(const Script& script);
  bool Count();

  bool Directive();
  bool Dollar();
  bool Include();
  bool ComplainOfJoinedName(GameToken name);
  bool Define();
  bool DefineParameters(Macro& macro);
  bool Undefine();
  bool IfDefined(bool wanted);
  bool If(bool is_elif);
  bool Else();
  bool EndIf();

  bool IsLastMacroOdd() const;
  /// The same as ComplainOfMacroValue, where a file beside the bot's defines
  /// the macro that gives the name.
  bool ComplainOfIncludedMacro(const GameToken& name);
  void ComplainOfBody(const Macro& macro);
  static std::string TooManyParameters(const Macro& macro);
  bool Expand(const GameToken& name, const Macro& macro);
  bool ReadArguments(const GameToken& name, const Macro& macro,
                     std::vector<std::vector<GameToken>>& arguments);
  bool Merge(std::vector<GameToken>& tokens);

  enum class Extent { kLine, kBrackets };
  /// A number that was worked out.
  struct Calculation {
    double value = 0;
    std::optional<OwnNumber> own;
  };
  bool Evaluate(Extent extent, bool is_float, Calculation& result);
  bool EvaluateName(const GameToken& name, std::vector<GameToken>& tokens);
  void PutNumber(const Calculation& result, bool is_float,
                 const GameToken& where);

  GameToken Here() const;
  /// Given the path of a file that is missing, where it is about one.
  void Report(std::string_view id, Severity severity, const GameToken& token,
              std::string text, std::string missing = {});
  void ReportLexer(GameLexer::Outcome outcome, const GameToken& token);
  void ReportOddity(const GameToken& token);

  const GameFile& file_;
  const IncludeLookup& game_;
  Complaints& findings_;

  std::vector<std::string> file_names_;
  /// Of each of them, the line of the bot's own file that brings it in.
  std::vector<int> include_lines_;
  std::list<Script> scripts_;  ///< The innermost is the last.
  std::deque<GameToken> unread_;
  std::map<std::string, Macro, std::less<>> macros_;
  std::vector<Condition> conditions_;
  int skipped_ = 0;
  int depth_ = 0;
  std::size_t work_ = 0;
  bool is_endless_ = false;
  bool has_complained_ = false;
  /// A file that was included is not known, and what it would have defined.
  bool is_uncertain_ = false;
  std::string last_macro_;
  std::string missing_macro_;
  GameToken last_macro_name_;
  /// The beginning of the last part that was passed over, and whether it ran to
  /// the end of its file.
  std::optional<GameToken> skipped_from_;
  bool is_skipped_to_end_ = false;
  /// The last text that came out of such a part.
  std::optional<GameToken> leaked_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_PREPROCESSOR_H_
