#include "checks/weight_kind.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "botfiles/game_text.h"
#include "chat/vocabulary.h"
#include "model/file_names.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What is included at the end of a weight file.
constexpr std::array<std::string_view, 2> kWeaponCode = {"fw_weap.c", "fuzw.c"};
constexpr std::array<std::string_view, 2> kItemCode = {"fw_items.c", "fuzi.c"};

/// The place among the names and the line of the last #include of one of them.
std::optional<std::pair<std::size_t, int>> FindInclude(
    std::string_view bytes, const std::array<std::string_view, 2>& names) {
  std::optional<std::pair<std::size_t, int>> found;
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    if (!TrimBlanksAndTabs(*line).starts_with("#include")) continue;
    for (std::size_t at = 0; at < names.size(); ++at) {
      if (Contains(ToLower(*line), names.at(at))) {
        found = {at, static_cast<int>(lines.number())};
      }
    }
  }
  return found;
}

}  // namespace

std::optional<Complaint> FaultOfKind(const GameFile& file,
                                     const WeightsRead& read, bool are_weapons,
                                     const FilePlace& named_at) {
  const auto& own = are_weapons ? kWeaponCode : kItemCode;
  const auto& other = are_weapons ? kItemCode : kWeaponCode;
  const bool has_other_weights = read.missing_macro.empty();
  if (has_other_weights && read.count == 0) return std::nullopt;
  const auto included = FindInclude(file.bytes, other);
  if (!included || FindInclude(file.bytes, own)) return std::nullopt;
  Complaint fault = {.id = "weights-of-other-kind",
                     .severity = Severity::kError,
                     .place = {.file = file.name, .line = included->second},
                     .text = {}};
  const std::string_view own_code = own.at(included->first);
  if (!has_other_weights) {
    fault.text = Localized(
        are_weapons ? Localizable("This line includes %1, the game's code for "
                                  "items, but the file is that of the weights "
                                  "of weapons. Write #include \"%2\".")
                    : Localizable("This line includes %1, the game's code for "
                                  "weapons, but the file is that of the "
                                  "weights of items. Write #include \"%2\"."),
        {other.at(included->first), own_code});
    return fault;
  }
  const std::string_view end = are_weapons ? kWeaponWeightEnd : kItemWeightEnd;
  const std::string_view other_end =
      are_weapons ? kItemWeightEnd : kWeaponWeightEnd;
  std::string path = file.game_path;
  if (EndsWithIgnoringCase(path, other_end)) {
    path.replace(path.size() - end.size(), end.size(), end);
    fault.place = named_at;
    fault.text = Localized(
        are_weapons ? Localizable("This line names %1 for the weights of "
                                  "weapons, and that file has none but those "
                                  "of items. Write %2 in each skill block.")
                    : Localizable("This line names %1 for the weights of "
                                  "items, and that file has none but those of "
                                  "weapons. Write %2 in each skill block."),
        {Quoted(file.game_path), Quoted(path)});
    return fault;
  }
  if (EndsWithIgnoringCase(path, end)) {
    path.replace(path.size() - end.size(), end.size(), other_end);
  }
  fault.text = Localized(
      are_weapons
          ? Localizable("The game takes the weights of weapons out of this "
                        "file, and it has none but those of items. If %1 and "
                        "%2 have been swapped, exchange their names; if not, "
                        "write #include \"%3\" here.")
          : Localizable("The game takes the weights of items out of this file, "
                        "and it has none but those of weapons. If %1 and %2 "
                        "have been swapped, exchange their names; if not, "
                        "write #include \"%3\" here."),
      {Quoted(file.game_path), Quoted(path), own_code});
  return fault;
}

std::optional<Complaint> FaultOfCharacter(const GameFile& file,
                                          const FilePlace& named_at) {
  Complaint fault = {.id = kNotACharacter,
                     .severity = Severity::kError,
                     .place = {.file = file.name, .line = 0},
                     .text = {}};
  bool has_any = false;
  bool has_weights = false;
  LineReader lines(file.bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    std::string_view rest = *line;
    const std::string_view word = TakeWord(rest);
    if (word == "skill") return std::nullopt;
    const std::string_view name = TakeWord(rest);
    const bool is_weight =
        word == "#define" &&
        (name.starts_with("W_") || name.starts_with("GWW_") ||
         name.starts_with("FS_") || name.starts_with("FLAG_"));
    if (has_any || (word != "chat" && !is_weight)) continue;
    has_any = true;
    has_weights = is_weight;
    fault.place.line = static_cast<int>(lines.number());
  }
  if (!has_any) return std::nullopt;
  std::string path = file.game_path;
  constexpr std::array kOtherEnds = {kWeaponWeightEnd, kItemWeightEnd,
                                     kChatEnd};
  const bool is_other =
      std::ranges::any_of(kOtherEnds, [&path](std::string_view end) {
        return EndsWithIgnoringCase(path, end);
      });
  if (is_other) {
    path.replace(path.size() - kCharacterEnd.size(), kCharacterEnd.size(),
                 kCharacterEnd);
    fault.place = named_at;
    fault.text = Localized(
        has_weights ? Localizable("This line names %1, which holds weights and "
                                  "not the bot's character. Write %2.")
                    : Localizable("This line names %1, which holds chats and "
                                  "not the bot's character. Write %2."),
        {Quoted(file.game_path), Quoted(path)});
  } else {
    fault.text = Localized(
        has_weights
            ? Localizable(
                  "This file holds weights, but the game looks in it for the "
                  "bot's character, the blocks skill 1, skill 4 and skill 5. "
                  "Put the bot's own character file in its place.")
            : Localizable(
                  "This file holds chats, but the game looks in it for the "
                  "bot's character, the blocks skill 1, skill 4 and skill 5. "
                  "Put the bot's own character file in its place."));
  }
  return fault;
}

}  // namespace fragsmith
