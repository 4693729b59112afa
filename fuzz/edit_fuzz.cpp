#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <variant>
#include <vector>

#include "fuzz/oracle.h"
#include "game/stand_ins.h"
#include "inplace/edit_in_place.h"
#include "model/characteristic_catalogue.h"
#include "support/unified_diff.h"

namespace fragsmith {
namespace {

/// What an input says beside the bytes of the file.
struct Edit {
  BotFile kind;
  std::size_t change;  ///< Which of all that such a file may hold.
  std::size_t value;   ///< Which of the values below.
};

constexpr double kNumbers[] = {0, 1, 0.5, 0.125, 250, 7.5};
constexpr const char* kTexts[] = {"Rook", "a \"b\"", "two words",
                                  "1",    "x; // y", "{NAME} went"};

/// A bot in which everything differs from the other one.
Bot OtherBot(const Bot& bot, std::size_t value) {
  const double number = kNumbers[value % std::size(kNumbers)];
  const std::string text = kTexts[value % std::size(kTexts)];
  Bot other = bot;
  for (const ParameterId id : {kNameField, kGenderField, kFunNameField,
                               kModelField, kSkinField, kRailColorField}) {
    other.Put(id, text);
  }
  for (int index = kChatRange.first; index <= kItemWeightRange.last; ++index) {
    other.Put(ParameterId(index), number);
  }
  for (const Level level : kLevels) {
    for (const int index : kPerLevelRange) other.Put({level, index}, number);
  }
  for (const ChatTypeId type : kAllChatTypes) {
    // Something replaced, something gone, something new.
    if (value % 2 == 0) other.RemoveChatLine(type, ChatLineIndex(0));
    other.SetChatLine(type, other.EndOfChatLines(type), text);
    if (value % 3 == 0) other.SetChatLine(type, ChatLineIndex(0), text);
  }
  return other;
}

/// The first bot with one thing of the other.
Bot WithChange(const Bot& bot, const FileChange& change, const Bot& other) {
  Bot changed = bot;
  if (const auto* const type = std::get_if<ChatTypeId>(&change)) {
    changed.SetChatLines(*type, other.ChatLines(*type));
    return changed;
  }
  const ParameterId id = std::get<ParameterId>(change);
  changed.Put(id, other.Parameter(id));
  if (id == kModelField) changed.Put(kSkinField, other.Parameter(kSkinField));
  return changed;
}

/// The lines in an order of their own: one that has to stay in another block of
/// the file keeps its place there.
std::vector<std::string> SortedLines(const Bot& bot, ChatTypeId type) {
  std::vector<std::string> lines = bot.ChatLines(type);
  std::erase(lines, std::string());
  std::sort(lines.begin(), lines.end());
  return lines;
}

/// Lines of the difference that begin with the mark.
std::size_t CountOf(char mark, const std::string& diff) {
  std::size_t count = 0;
  for (std::size_t at = diff.find("\n@@"); at != std::string::npos;
       at = diff.find('\n', at + 1)) {
    if (at + 1 < diff.size() && diff[at + 1] == mark) ++count;
  }
  return count;
}

/// True for what stands in one place of a good file.
bool IsInOnePlace(BotFile kind, const FileChange& change) {
  const auto* const id = std::get_if<ParameterId>(&change);
  if (id == nullptr) return false;
  return kind != BotFile::kCharacteristics || id->level();
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  constexpr std::size_t kHead = 3;
  constexpr std::size_t kMaxBytes = 20'000;
  if (bytes.size() < kHead || bytes.size() > kMaxBytes) return;
  const auto number = [&bytes](std::size_t at) {
    return static_cast<std::size_t>(static_cast<unsigned char>(bytes[at]));
  };
  const Edit edit = {static_cast<BotFile>(number(0) % 5), number(1), number(2)};
  const std::string file(bytes.substr(kHead));

  const BothReaders readers({edit.kind, "file", "rook"}, StandInGameFile);
  const Bot before = readers.Read(file).bot;
  const auto same = EditInPlace(readers, file, before, before);
  Expect(same.has_value(), "what is not edited is editable");
  ExpectEqual(file, *same, "and stays as it is");

  const Bot other = OtherBot(before, edit.value);
  const std::vector<FileChange> all = ChangesIn(edit.kind, before, other);
  if (all.empty()) return;
  const FileChange change = all[edit.change % all.size()];
  const Bot after = WithChange(before, change, other);
  const auto edited = EditInPlace(readers, file, before, after);
  if (!edited) {
    Expect(!edited.error().what.empty(), "a refusal has its reason");
    ExpectShowable(edited.error().what);
    return;
  }
  if (IsInOnePlace(edit.kind, change)) {
    // A CR alone ends no line there.
    const std::string diff = UnifiedDiff(file, *edited, "a", "b");
    Expect(CountOf('-', diff) <= 1 && CountOf('+', diff) <= 2,
           "a value stands in one line");
  }
  // Of what the file may hold nothing but this has changed. A value that was
  // read oddly may be so still, and a name is looked for by its file.
  const FileReading read = readers.Read(*edited);
  for (const FileChange& left : ChangesIn(edit.kind, read.bot, after)) {
    const auto* const id = std::get_if<ParameterId>(&left);
    if (id == nullptr && left == change) {
      const ChatTypeId type = std::get<ChatTypeId>(left);
      Expect(SortedLines(read.bot, type) == SortedLines(after, type),
             "every line is there once");
      continue;
    }
    const bool is_kept_apart =
        left == change && (read.report.plain_values.contains(*id) ||
                           (edit.kind == BotFile::kDescription &&
                            (*id == kNameField ||
                             (*id == kModelField &&
                              read.report.plain_values.contains(kSkinField)))));
    Expect(is_kept_apart, "every value is what it is to be");
  }
}

}  // namespace fragsmith
