#ifndef FRAGSMITH_TESTS_INPLACE_EDITING_H_
#define FRAGSMITH_TESTS_INPLACE_EDITING_H_

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "game/stand_ins.h"
#include "inplace/edit_in_place.h"
#include "inplace/game_weights.h"
#include "support/unified_diff.h"

namespace fragsmith {

/// A file of a bot that was loaded, to be edited again and again.
class LoadedFile {
 public:
  LoadedFile(BotFile kind, std::string bytes, std::string called = "rook",
             IncludeLookup game = StandInGameFile)
      : kind_(kind),
        bytes_(std::move(bytes)),
        readers_({kind, "file", std::move(called)}, game) {
    LoadedBot loaded;
    loaded.bot = readers_.Read(bytes_).bot;
    if (kind == BotFile::kItemWeights || kind == BotFile::kWeaponWeights) {
      TakeGameWeights(kind, "file", bytes_, game, loaded);
    }
    before_ = loaded.bot;
    notes_ = loaded.notes;
  }

  const Bot& before() const { return before_; }
  const std::string& bytes() const { return bytes_; }
  const BothReaders& readers() const { return readers_; }
  const Notes& notes() const { return notes_; }

  Result<std::string> Edited(const Bot& after, Notes* notes = nullptr) const {
    return EditInPlace(readers_, bytes_, before_, after, {}, {notes});
  }
  Result<std::string> Edited(ParameterId id, Value value) const {
    Bot after = before_;
    after.Put(id, std::move(value));
    return Edited(after);
  }
  Result<std::string> Edited(ChatTypeId type,
                             const std::vector<std::string>& lines,
                             Notes* notes = nullptr) const {
    Bot after = before_;
    after.SetChatLines(type, lines);
    return Edited(after, notes);
  }

  /// The lines that an edit took out and put in: "-old\n+new\n"; or why it
  /// was refused.
  std::string Difference(const Result<std::string>& edited) const {
    if (!edited) return edited.error().what;
    return Changed(bytes_, *edited);
  }

  static std::string Changed(std::string_view left, std::string_view right) {
    const std::string diff = UnifiedDiff(left, right, "a", "b");
    std::string changed;
    std::size_t line_start = 0;
    int number = 0;
    while (line_start < diff.size()) {
      const std::size_t end = diff.find('\n', line_start) + 1;
      const std::string line = diff.substr(line_start, end - line_start);
      line_start = end;
      if (++number > 2 && (line[0] == '+' || line[0] == '-')) changed += line;
    }
    return changed;
  }

 private:
  BotFile kind_;
  std::string bytes_;
  BothReaders readers_;
  Bot before_;
  Notes notes_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_INPLACE_EDITING_H_
