#include "cli/bot_choice.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "checks/bot_location.h"
#include "checks/bot_on_disk.h"
#include "cli/misspelt_folder.h"
#include "cli/terminal.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// As it is typed in a console: with quotes around it or without.
std::string WithoutQuotes(const std::string& name) {
  const bool is_quoted =
      name.size() > 2 && name.front() == '"' && name.back() == '"';
  return is_quoted ? name.substr(1, name.size() - 2) : name;
}

std::string WithoutColours(const std::string& name) {
  std::string plain;
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (name[at] == '^' && at + 1 < name.size()) {
      ++at;
    } else {
      plain += name[at];
    }
  }
  return plain;
}

void PrintNames(const std::vector<std::string>& names,
                CommandContext& context) {
  for (const std::string& name : names) {
    context.err << Printable(Utf8FromGameText(name)) << '\n';
  }
}

/// The folder in this one that has the game's folders in it; empty without one.
fs::path FolderWithBots(const fs::path& folder) {
  std::error_code reason;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    if (IsFolder(entry->path() / PathFromBytes(kBotFilesFolder))) {
      return entry->path();
    }
  }
  return {};
}

}  // namespace

std::optional<std::size_t> FindName(const std::vector<std::string>& names,
                                    const std::string& wanted,
                                    const GivenFiles& given) {
  auto found = std::find(names.begin(), names.end(), wanted);
  if (found == names.end()) {
    found = std::find_if(names.begin(), names.end(),
                         [&wanted](const std::string& name) {
                           return EqualIgnoringCase(name, wanted);
                         });
  }
  if (found == names.end()) {
    const std::string plain = WithoutColours(WithoutQuotes(wanted));
    found =
        std::find_if(names.begin(), names.end(), [&](const std::string& name) {
          const std::string in_game = NameToAdd(ReadBot(given, name).files);
          return EqualIgnoringCase(WithoutColours(in_game), plain);
        });
  }
  if (found == names.end()) return std::nullopt;
  return static_cast<std::size_t>(found - names.begin());
}

std::optional<BotChoice> FindListed(const std::vector<std::string>& names,
                                    const std::string& wanted,
                                    const GivenFiles& given) {
  std::optional<ListedBot> listed = FindListedBot(given, WithoutQuotes(wanted));
  if (!listed) return std::nullopt;
  const auto found =
      std::ranges::find_if(names, [&listed](const std::string& name) {
        return EqualIgnoringCase(name, listed->file_name);
      });
  if (found == names.end()) return std::nullopt;
  return BotChoice{.index = static_cast<std::size_t>(found - names.begin()),
                   .refusal = {},
                   .listed_name = std::move(listed->name),
                   .shares_files = listed->shares_files};
}

std::optional<ListedBot> FindUnfinished(const std::string& wanted,
                                        const GivenFiles& given) {
  std::optional<ListedBot> listed = FindListedBot(given, WithoutQuotes(wanted));
  if (listed && listed->file_name.empty()) listed->file_name = wanted;
  return listed;
}

BotChoice ChooseBot(const std::vector<std::string>& names,
                    const BotSource& options, const GivenFiles& given,
                    CommandContext& context) {
  const fs::path inner = names.empty() && !given.is_packed()
                             ? FolderWithBots(PathFromBytes(options.source))
                             : fs::path();
  if (!inner.empty()) {
    Fail(context, {.what = "There are no bot files at the top of this folder: "
                           "botfiles lies one folder too deep, in " +
                           Utf8FromPath(inner.filename()) + ".",
                   .file = options.source,
                   .line = 0,
                   .advice = "Give that folder. For the game, what is in it "
                             "belongs into baseq3 itself."});
    return {};
  }
  if (names.empty() && !given.is_packed() &&
      TellMisspeltFolder(options.source, context)) {
    return {};
  }
  if (names.empty()) {
    const std::string why = WhyNoBots(PathFromBytes(options.source));
    Fail(context,
         {.what = "There are no bot files.",
          .file = options.source,
          .line = 0,
          .advice = why.empty()
                        ? "The files of a bot end in _c.c, _w.c, _i.c and _t.c."
                        : why});
    return {};
  }
  if (options.name.empty()) {
    if (names.size() == 1) return {.index = 0};
    context.err << "There is more than one bot; give the name of one:\n";
    PrintNames(names, context);
    return {.index = {}, .refusal = kWrongUsage};
  }
  const std::optional<std::string> wanted = GameTextFromUtf8(options.name);
  if (wanted && options.is_for_game && given.is_packed()) {
    // The list of bots gives a name to files that may be called otherwise,
    // though there are files that are called so.
    const std::optional<ListedBot> listed =
        FindListedBot(given, WithoutQuotes(*wanted));
    if (listed && listed->is_of_list) {
      if (auto choice = FindListed(names, *wanted, given)) return *choice;
    }
  }
  const std::optional<std::size_t> index =
      wanted ? FindName(names, *wanted, given) : std::nullopt;
  if (wanted) {
    // Of several bots with the same files the one is meant that is named.
    if (auto listed = FindListed(names, *wanted, given);
        listed &&
        (!index || (listed->index == index && listed->shares_files))) {
      return *listed;
    }
  }
  if (!index) {
    context.err << "There is no bot " << Printable(options.name)
                << "; there are:\n";
    PrintNames(names, context);
  }
  return {.index = index};
}

}  // namespace fragsmith
