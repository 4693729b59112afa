#include "botfiles/weight_file.h"

#include <optional>
#include <span>

#include "botfiles/keyed_line.h"
#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr IndexRange kWeaponGroups[] = {kWeaponWeightRange};
constexpr IndexRange kItemGroups[] = {
    {54, 55}, {56, 63}, {64, 71}, {72, 79}, {80, 80}};

/// The groups stand apart by empty lines, which surround each of them.
std::string Write(const Bot& bot, const Author& author,
                  std::span<const IndexRange> groups,
                  std::string_view game_script) {
  std::string text = HeaderComment(bot, author);
  const auto add_line = [&text](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  add_line("");
  add_line("");
  add_line("#include \"inv.h\"");
  add_line("");
  for (const IndexRange& group : groups) {
    for (int index = group.first; index <= group.last; ++index) {
      text += PaddedKey(index);
      add_line(FormatValue(bot.Parameter(index)));
    }
    add_line("");
  }
  add_line("//");
  add_line("#include \"" + std::string(game_script) + "\"");
  return text;
}

std::optional<int> KeyIn(std::string_view line, IndexRange range) {
  // Every key begins so, and one walk over a line is enough for them all.
  constexpr std::string_view kStart = "#define ";
  int first = range.last + 1;
  for (std::size_t place = line.find(kStart); place != std::string_view::npos;
       place = line.find(kStart, place + kStart.size())) {
    const std::string_view rest = line.substr(place);
    int index = range.first;
    while (index < first && !StartsWithKey(rest, BareKey(index))) ++index;
    first = index;
  }
  if (first > range.last) return std::nullopt;
  return first;
}

ReadReport Read(std::string_view bytes, const std::string& file_name,
                IndexRange range, Bot& bot) {
  ReadReport report;
  ValueReader reader(file_name, bot, report);
  CommentStripper comments;
  bool has_weight = false;
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    const std::string_view code = comments.Strip(*line);
    if (IsPassedOver(*line)) continue;
    const std::optional<int> key = KeyIn(*line, range);
    if (!key) continue;
    has_weight = true;
    reader.Take({lines.number(), *line, code}, *key, *key);
  }
  if (!has_weight) {
    reader.AddNote(0,
                   "The file sets none of the weights that a bot has here. "
                   "Saving the bot over it would lose what it says.");
  }
  return report;
}

}  // namespace

std::string WriteWeaponWeightFile(const Bot& bot, const Author& author) {
  return Write(bot, author, kWeaponGroups, "fw_weap.c");
}

std::string WriteItemWeightFile(const Bot& bot, const Author& author) {
  return Write(bot, author, kItemGroups, "fw_items.c");
}

ReadReport ReadWeaponWeightFile(std::string_view bytes,
                                const std::string& file_name, Bot& bot) {
  return Read(bytes, file_name, kWeaponWeightRange, bot);
}

ReadReport ReadItemWeightFile(std::string_view bytes,
                              const std::string& file_name, Bot& bot) {
  return Read(bytes, file_name, kItemWeightRange, bot);
}

}  // namespace fragsmith
