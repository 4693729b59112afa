#ifndef FRAGSMITH_INPLACE_ATTEMPT_H_
#define FRAGSMITH_INPLACE_ATTEMPT_H_

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inplace/edit_in_place.h"
#include "inplace/file_reading.h"
#include "inplace/splice.h"
#include "model/bot.h"
#include "support/localization.h"

namespace fragsmith {

/// Facts as they must be; nothing for one that must be gone.
using ExpectedFacts = std::map<FactKey, std::optional<std::string>>;

/// A way to bring one change into a file, and what must then be read.
struct Attempt {
  std::vector<Splice> splices;
  /// The facts that the change is about.
  ExpectedFacts expected;
  /// Facts that may change with it, and kinds of which all may.
  std::vector<FactKey> free;
  std::vector<FactKind> free_kinds;
  /// Facts of which one at least changes where the game has the new value.
  std::vector<FactKey> moving;
  /// The new numbers of weights, by where the old ones begin.
  std::map<std::size_t, double> numbers;
};

/// The ways to try, best first, or why there is none: a sentence.
struct Plan {
  std::vector<Attempt> attempts;
  std::string refusal;
  std::vector<std::string> notes = {};  ///< What the user should know of it.
  /// There is nothing to take out of the file.
  bool is_needless = false;
};

/// The most ways to put a line into a file.
inline constexpr std::size_t kMaxInsertions = 6;

/// Why there is no attempt, where no better reason is known; for Localized().
inline constexpr std::string_view kNoNeighbours =
    Localizable("The file has none of the lines beside which it belongs.");

/// A file as it is before a change, and the change: to what the bot has.
struct PlanContext {
  const BothReaders& readers;
  const FileReading& reading;
  std::string_view bytes;
  const Bot& after;
  const NumberChooser& chooser;
  const ChatSpellings& spellings;
};

/// For a parameter of a characteristic or weight file.
Plan PlanCharacteristic(const PlanContext& context, ParameterId id);
Plan PlanWeight(const PlanContext& context, ParameterId id);
/// For a field of a description. Model and skin are one.
Plan PlanDescription(const PlanContext& context, ParameterId field);
/// For the lines of a chat type.
Plan PlanChat(const PlanContext& context, ChatTypeId type);

/// What stands around a new line: the spans that belong before it and behind
/// it.
struct Neighbours {
  std::vector<TextSpan> before;  ///< The nearest first.
  std::vector<TextSpan> behind;  ///< The nearest first.
};

/// The ways to put a line with key and value among them, best first.
std::vector<Splice> Insertions(std::string_view bytes,
                               const Neighbours& neighbours,
                               std::string_view padded_key,
                               std::string_view value);

/// True where nothing but blanks stands between the key and the span. Our
/// reader goes by columns, and may begin within a word or behind others.
bool IsBehindKey(std::string_view bytes, ParameterId id, TextSpan span);

/// True between an #if and its #endif, where the game may pass over lines.
bool IsInCondition(std::string_view bytes, std::size_t offset);

/// The token at which a text begins that our reader takes for a value.
TextSpan TokenAt(std::string_view bytes, TextSpan span);

bool IsOneLine(std::string_view bytes, TextSpan span);

/// Where the last of our reader's values stands; empty where there is none.
TextSpan LastSpan(const PlanContext& context, ParameterId id);

/// The same attempts with our own padding between key and value, where blanks
/// and TABs stand there: our reader goes by columns, and so it finds the value.
void AddPadded(const PlanContext& context, ParameterId id, Plan& plan);

/// Why a value is not edited that the game has from one line, and a load from
/// another; empty where it is the same line.
std::string TwoPlacesRefusal(std::string_view bytes, TextSpan of_game,
                             TextSpan of_load);

/// Why nothing is edited that the game does not read, as it stumbles before.
std::string BrokenRefusal(const FileReading& reading);

/// The facts that our reader must give for a parameter.
void ExpectOurs(ParameterId id, std::string fact, Attempt& attempt);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_ATTEMPT_H_
