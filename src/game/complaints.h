#ifndef FRAGSMITH_GAME_COMPLAINTS_H_
#define FRAGSMITH_GAME_COMPLAINTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/bot_place.h"

namespace fragsmith {

/// How much the game minds.
enum class Severity {
  kError,    ///< The bot is not added, or is broken at some skill.
  kWarning,  ///< The game ignores or changes something.
  kHint,     ///< Works, but perhaps not as the author thinks.
};

/// Something that the game has to say of a file while it reads it.
struct Complaint {
  std::string_view id;  ///< Of its kind, such as "no-closing-brace".
  Severity severity = Severity::kHint;
  FilePlace place;
  std::string text;  ///< One sentence or two, UTF-8, for players.
  /// The key of a description whose value the game does not read as it is
  /// meant, in lower case; empty for all else.
  std::string key = {};
  /// The path below botfiles of a file that is asked for and not there.
  std::string missing = {};

  bool operator==(const Complaint&) const = default;
};

/// What reading files brings to light, each thing once and not without end:
/// the game reads a file several times, and so do we.
class Complaints {
 public:
  /// Of each severity, so that no number of warnings hides an error.
  static constexpr std::size_t kMax = 200;

  /// Where the game's own files are not known, one that is missing is no fault.
  explicit Complaints(bool is_game_known = true)
      : is_game_known_(is_game_known) {}

  bool is_game_known() const { return is_game_known_; }

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text) {
    Add({.id = id,
         .severity = severity,
         .place = {.file = file, .line = line},
         .text = std::move(text)});
  }
  void Add(Complaint complaint);

  /// Errors from this index in the list on did no harm after all.
  void Soften(std::size_t first);

  /// Of the errors from this index on, all but the first follow from it.
  void KeepFirstError(std::size_t first);
  std::optional<Complaint> FirstError(std::size_t first) const;
  bool HasError(std::size_t first) const {
    return FirstError(first).has_value();
  }
  /// The first error from this index on is a consequence of this fault; where
  /// there is none, the fault does no harm.
  void ReplaceError(std::size_t first, Complaint fault);

  /// Whether more than a hint says already what is wrong with this line.
  bool IsTold(const FilePlace& place, std::string_view id = {}) const;

  /// Adds what may be there already as something less grave.
  void Raise(const Complaint& complaint);

  const std::vector<Complaint>& list() const { return list_; }

 private:
  std::vector<Complaint> list_;
  bool is_game_known_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_COMPLAINTS_H_
