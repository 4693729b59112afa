#include "checks/weight_kind.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "model/file_names.h"
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
                                     const WeightsRead& read,
                                     bool are_weapons) {
  const auto& own = are_weapons ? kWeaponCode : kItemCode;
  const auto& other = are_weapons ? kItemCode : kWeaponCode;
  const bool has_other_weights = read.missing_macro.empty();
  if (has_other_weights && read.count == 0) return std::nullopt;
  const auto included = FindInclude(file.bytes, other);
  if (!included || FindInclude(file.bytes, own)) return std::nullopt;
  const std::string own_kind = are_weapons ? "weapons" : "items";
  const std::string other_kind = are_weapons ? "items" : "weapons";
  Complaint fault = {.id = "weights-of-other-kind",
                     .severity = Severity::kError,
                     .place = {.file = file.name, .line = included->second},
                     .text = {}};
  const std::string name(other.at(included->first));
  if (!has_other_weights) {
    fault.text = "This line includes " + name + ", the game's code for " +
                 other_kind + ", but the file is that of the weights of " +
                 own_kind + ". Write #include \"" +
                 std::string(own.at(included->first)) + "\".";
    return fault;
  }
  std::string path = file.game_path;
  const std::string_view end = are_weapons ? kWeaponWeightEnd : kItemWeightEnd;
  if (EndsWithIgnoringCase(path, end)) {
    path.replace(path.size() - end.size(), end.size(),
                 are_weapons ? kItemWeightEnd : kWeaponWeightEnd);
  }
  fault.text = "The game takes the weights of " + own_kind +
               " out of this file, and it has none but those of " + other_kind +
               ". If " + Quoted(file.game_path) + " and " + Quoted(path) +
               " have been swapped, exchange their names; if not, write "
               "#include \"" +
               std::string(own.at(included->first)) + "\" here.";
  return fault;
}

}  // namespace fragsmith
