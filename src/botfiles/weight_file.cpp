#include "botfiles/weight_file.h"

#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "botfiles/keyed_line.h"
#include "botfiles/left_out.h"
#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr IndexRange kWeaponGroups[] = {kWeaponWeightRange};
constexpr IndexRange kItemGroups[] = {
    {54, 55}, kPickupRange, kOwnedPickupRange, {72, 79}, {80, 80}};

/// What the two files differ in.
struct WeightFile {
  IndexRange range;
  std::span<const IndexRange> groups;
  std::string_view game_script;
};

constexpr WeightFile kWeaponFile = {kWeaponWeightRange, kWeaponGroups,
                                    "fw_weap.c"};
constexpr WeightFile kItemFile = {kItemWeightRange, kItemGroups, "fw_items.c"};

/// Every key begins so, and one walk over a line is enough for them all.
constexpr std::string_view kDefine = "#define ";

/// The groups stand apart by empty lines, which surround each of them.
std::string Write(const Bot& bot, const Author& author, const WeightFile& file,
                  const GameMacroValues& game) {
  std::string text = HeaderComment(bot, author);
  const auto add_line = [&text](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  add_line("");
  add_line("");
  add_line("#include \"inv.h\"");
  add_line("");
  for (const IndexRange& group : file.groups) {
    for (int index = group.first; index <= group.last; ++index) {
      text += PaddedKey(index);
      add_line(FormatValue(bot.Parameter(ParameterId(index))));
    }
    add_line("");
  }
  for (const auto& [name, value] : game.macros) {
    add_line(std::string(kDefine) + name + "\t\t\t\t" + FormatValue(value));
  }
  if (!game.macros.empty()) add_line("");
  add_line("//");
  add_line("#include \"" + game.script + "\"");
  return text;
}

std::optional<int> KeyIn(std::string_view line, IndexRange range) {
  int first = range.last + 1;
  for (std::size_t offset = line.find(kDefine);
       offset != std::string_view::npos;
       offset = line.find(kDefine, offset + kDefine.size())) {
    const std::string_view rest = line.substr(offset);
    int index = range.first;
    while (index < first && !StartsWithKey(rest, BareKey(index))) ++index;
    first = index;
  }
  if (first > range.last) return std::nullopt;
  return first;
}

/// One weight file on its way into a bot: by the reading rules, and beside it
/// as the game's preprocessor reads it.
class WeightReader {
 public:
  WeightReader(const std::string& file, const WeightFile& kind, Bot& bot)
      : kind_(kind),
        left_out_(file, {"inv.h", std::string(kind.game_script)}),
        reader_(file, bot, report_) {}

  ReadReport Read(std::string_view bytes) {
    const std::size_t header_end = HeaderLineCount(bytes);
    CommentStripper comments;
    LineReader lines(bytes);
    while (const std::optional<std::string_view> line = lines.Next()) {
      const std::string_view code = comments.Strip(*line);
      number_ = lines.number();
      if (comments.had_words() && number_ > header_end) {
        left_out_.AddComment(number_);
      }
      TakeAsGame(TrimBlanksAndTabs(code));
      if (IsPassedOver(*line)) continue;
      const std::optional<int> key = KeyIn(*line, kind_.range);
      if (!key) continue;
      const auto start = static_cast<std::size_t>(line->data() - bytes.data());
      reader_.Take({number_, *line, code, start}, ParameterId(*key));
    }
    reader_.Finish();
    left_out_.Tell(report_.notes);
    if (report_.given.empty()) {
      report_.notes.Add(
          {.file = left_out_.file(),
           .line = 0,
           .text = Localized(
               "The file sets none of the weights that a bot has here. Writing "
               "it anew would lose what it says."),
           .kind = NoteKind::kNoWeights});
    } else {
      report_.missing_includes = left_out_.missing_includes();
    }
    return std::move(report_);
  }

 private:
  void TakeAsGame(std::string_view code) {
    if (code.empty()) return;
    const std::string_view line = code;
    if (!code.starts_with('#')) return left_out_.AddText(line, number_);
    code.remove_prefix(1);
    if (TakeWord(code) != "define") return left_out_.AddInclude(line, number_);
    const std::string_view name = TakeWord(code);
    TakeMacro(name, code);
  }

  void TakeMacro(std::string_view name, std::string_view value) {
    for (const int key : kind_.range) {
      if (BareKey(key).substr(kDefine.size()) == name) {
        return reader_.TakeAsGame(number_, ParameterId(key),
                                  PlainValue(TakeWord(value)));
      }
    }
    left_out_.AddName(name, number_);
  }

  const WeightFile& kind_;
  ReadReport report_;
  LeftOut left_out_;
  ValueReader reader_;
  std::size_t number_ = 0;
};

}  // namespace

std::string WriteWeaponWeightFile(const Bot& bot, const Author& author) {
  return Write(bot, author, kWeaponFile,
               {std::string(kWeaponFile.game_script), {}});
}

std::string WriteItemWeightFile(const Bot& bot, const Author& author) {
  return Write(bot, author, kItemFile,
               {std::string(kItemFile.game_script), {}});
}

std::string WriteWeaponWeightFile(const Bot& bot, const Author& author,
                                  const GameMacroValues& game) {
  return Write(bot, author, kWeaponFile, game);
}

std::string WriteItemWeightFile(const Bot& bot, const Author& author,
                                const GameMacroValues& game) {
  return Write(bot, author, kItemFile, game);
}

ReadReport ReadWeaponWeightFile(std::string_view bytes,
                                const std::string& file_name, Bot& bot) {
  return WeightReader(file_name, kWeaponFile, bot)
      .Read(WithPlainBlanks(bytes, TextsInLine::kOne));
}

ReadReport ReadItemWeightFile(std::string_view bytes,
                              const std::string& file_name, Bot& bot) {
  return WeightReader(file_name, kItemFile, bot)
      .Read(WithPlainBlanks(bytes, TextsInLine::kOne));
}

}  // namespace fragsmith
