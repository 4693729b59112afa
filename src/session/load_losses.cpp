#include "session/load_losses.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "botfiles/block_keys.h"
#include "botfiles/left_out.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// By the index of a key: whether a save writes it in every block.
constexpr auto kIsAlwaysSaved = [] {
  std::array<bool, kCatalogueSize> is_saved{};
  for (std::size_t at = 0; at < is_saved.size(); ++at) {
    const int key = static_cast<int>(at);
    is_saved.at(at) = IsBlockKey(key) && !kOptionalRange.Contains(key);
  }
  return is_saved;
}();

/// The names of those, in order, of which the file does not speak.
NameList Missing(const std::vector<ParameterId>& saved,
                 const ReadReport& report) {
  std::vector<ParameterId> missing;
  std::ranges::set_difference(saved, report.given, std::back_inserter(missing));
  NameList names;
  for (const ParameterId id : missing) {
    std::string_view name = BareKey(id.index());
    constexpr std::string_view kDefine = "#define ";
    if (name.starts_with(kDefine)) name.remove_prefix(kDefine.size());
    names.Add(std::string(name));
  }
  return names;
}

/// What a save writes in the place of a name.
std::string SavedName(const ReadReport::Name& name, const Bot& bot) {
  const std::string saved = bot.Text(name.field);
  const bool is_path = name.field != kNameField && name.field != kChatNameField;
  return is_path ? InBots(saved) : saved;
}

}  // namespace

void NoteMissingLevels(const ReadReport& report, const std::string& file,
                       Notes& notes) {
  for (const Level level : kLevels) {
    const std::string number = std::to_string(NumberOf(level));
    const bool has_level =
        std::any_of(report.given.begin(), report.given.end(),
                    [level](ParameterId id) { return id.level() == level; });
    if (!has_level) {
      notes.Add({file, 0,
                 Localized("The file has no level %1, so that its values are "
                           "0, and a save writes it so. The game plays its "
                           "default bot there.",
                           {number})});
      continue;
    }
    std::vector<ParameterId> saved;
    for (std::size_t key = 0; key < kIsAlwaysSaved.size(); ++key) {
      if (kIsAlwaysSaved.at(key))
        saved.emplace_back(level, static_cast<int>(key));
    }
    const NameList missing = Missing(saved, report);
    if (missing.empty()) continue;
    notes.Add({file, 0,
               Localized("In the file, level %1 lacks these, which a save "
                         "writes as the bot has them: %2.",
                         {number, missing.Text()})});
  }
}

void NoteMissingWeights(const ReadReport& report, IndexRange range,
                        const std::string& file, Notes& notes) {
  // Of a file that has none at all the reader has told.
  if (report.given.empty()) return;
  const NameList missing = Missing(ParametersOf(range), report);
  if (missing.empty()) return;
  notes.Add({.file = file,
             .line = 0,
             .text = Localized("The file does not set these weights, and a "
                               "save writes 0: %1.",
                               {missing.Text()}),
             .kind = NoteKind::kMissingWeights});
}

void NoteMissingTypes(const ReadReport& report, const std::string& file,
                      Notes& notes) {
  NameList missing;
  for (const std::string& type : report.missing_types) missing.Add(type);
  if (missing.empty()) return;
  notes.Add({file, 0,
             Localized("The file has no block for these types, and a save "
                       "writes one without lines: %1.",
                       {missing.Text()})});
}

void NoteMissingIncludes(const ReadReport& report, const std::string& file,
                         Notes& notes) {
  NameList missing;
  for (const std::string& name : report.missing_includes) {
    missing.Add('"' + name + '"');
  }
  if (missing.empty()) return;
  notes.Add({file, 0,
             Localized("The file does not include %1, without which the game "
                       "cannot use it or uses it in another way. A save does.",
                       {missing.Text()})});
}

void NoteOtherNames(const ReadReport& report, const Bot& bot,
                    const std::string& file, Notes& notes) {
  NameList others;
  std::size_t first_line = 0;
  for (const ReadReport::Name& name : report.names) {
    const std::string saved = SavedName(name, bot);
    if (EqualIgnoringCase(name.text, saved)) continue;
    if (first_line == 0) first_line = name.line;
    others.Add(Localized(R"(%1 "%2" becomes "%3")",
                         {name.key, ShownText(name.text), ShownText(saved)}));
  }
  if (others.empty()) return;
  notes.Add(
      {file, first_line,
       Localized("The bot's files are called by its name, and a save writes "
                 "that: %1.",
                 {others.Text()})});
}

}  // namespace fragsmith
