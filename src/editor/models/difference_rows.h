#ifndef FRAGSMITH_EDITOR_MODELS_DIFFERENCE_ROWS_H_
#define FRAGSMITH_EDITOR_MODELS_DIFFERENCE_ROWS_H_

#include <QString>
#include <array>
#include <compare>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "editor/models/compare_groups.h"
#include "model/bot.h"
#include "session/bot_difference.h"

namespace fragsmith {

/// A row of two bots side by side: a group with its rows, a parameter, or a
/// chat line in which they differ.
struct DifferenceRow {
  struct Cell {
    QString text;
    bool is_missing = false;  ///< The text says that there is nothing.

    bool operator==(const Cell&) const = default;
  };

  /// What the row stays known by while the left bot is edited. Its lines are
  /// counted anew with each, so a line is known by that of the other bot, and
  /// one that it lacks by the next that it has.
  struct Key {
    int group = kNoGroup;
    std::optional<ParameterId> parameter;
    std::optional<ChatLineIndex> right_line;
    int lacking = 0;  ///< From 1 before a line; 0 for the line itself.

    // The linter takes the 0 in it for a pointer.
    auto operator<=>(const Key&) const = default;  // NOLINT(*-use-nullptr)
  };

  Key key;
  bool is_group = false;
  bool is_equal = false;
  /// Its index among the differences; nothing for what cannot be copied by
  /// itself.
  std::optional<std::size_t> difference;
  std::array<Cell, 3> cells;  ///< What, and how in either bot.
  DifferenceRow* parent = nullptr;
  std::vector<std::unique_ptr<DifferenceRow>> children;
};

using DifferenceRows = std::vector<std::unique_ptr<DifferenceRow>>;

/// All parameters by their groups, then the chat lines in the differences,
/// of a chat type no more than help.
DifferenceRows MakeDifferenceRows(
    const Bot& bot, const Bot& other,
    const std::vector<BotDifference>& differences);

/// What a difference is called among all: "Game entry, line 2".
QString DifferenceTitle(const BotDifference& difference);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_DIFFERENCE_ROWS_H_
