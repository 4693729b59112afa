#include "editor/commands/save_questions.h"

#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

using Paths = std::vector<std::filesystem::path>;

/// Each in a line of its own.
std::string InLines(const Paths& paths) {
  std::string text;
  for (const std::filesystem::path& path : paths) {
    if (!text.empty()) text += "\n";
    text += Localized("'%1'", {Utf8FromPath(path)});
  }
  return text;
}

}  // namespace

std::string NotRead(const Paths& paths) {
  return Localized(paths.size() == 1
                       ? Localizable("%1 was not read with this bot.")
                       : Localizable("%1\nwere not read with this bot."),
                   {InLines(paths)});
}

std::string IsThere(const std::filesystem::path& path) {
  return Localized("'%1' is there already.", {Utf8FromPath(path)});
}

std::string OtherBotsGo(const std::string& names) {
  return Localized("Other bots in it, which would go: %1.", {names});
}

std::string MayBeReplaced(std::size_t count) {
  return Localized(count == 1 ? Localizable("Do you want to replace it?")
                              : Localizable("Do you want to replace them?"));
}

std::string MayBeOverwritten(const Paths& changed) {
  return Localized(
      changed.size() == 1
          ? Localizable("%1 was changed since the bot was read or saved here. "
                        "Do you want to overwrite it?")
          : Localizable("%1\nwere changed since the bot was read or saved "
                        "here. Do you want to overwrite them?"),
      {InLines(changed)});
}

std::string EditedByOthersAlone(const Paths& changed) {
  return Localized(
      changed.size() == 1
          ? Localizable("%1 was changed since the bot was read or saved here, "
                        "and nothing that it holds was edited here. To write "
                        "it takes that change away.")
          : Localizable("%1\nwere changed since the bot was read or saved "
                        "here, and nothing that they hold was edited here. To "
                        "write them takes these changes away."),
      {InLines(changed)});
}

std::string MayBeMadeAnew(const Paths& gone, bool is_package) {
  const bool is_one = gone.size() == 1;
  std::string text = Localized(
      is_one ? Localizable("%1 is not there any more. Do you want to make it "
                           "anew?")
             : Localizable("%1\nare not there any more. Do you want to make "
                           "them anew?"),
      {InLines(gone)});
  if (is_package) return text;
  text += " ";
  text += Localized(
      is_one
          ? Localizable("Comments and lines of its author's own are lost.")
          : Localizable("Comments and lines of their author's own are lost."));
  return text;
}

}  // namespace fragsmith
