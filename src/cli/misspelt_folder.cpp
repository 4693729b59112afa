#include "cli/misspelt_folder.h"

#include <string_view>
#include <system_error>

#include "session/bot_file.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The folder of this name in that one, in capitals of its own; that of the
/// name itself without one.
fs::path InAnyCase(const fs::path& folder, std::string_view name) {
  std::error_code reason;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    const fs::path own_name = entry->path().filename();
    if (EqualIgnoringCase(BytesFromPath(own_name), name)) return entry->path();
  }
  return folder / name;
}

}  // namespace

std::string MisspeltBotsFolder(const fs::path& source) {
  // botfiles/bots/x_c.c lies three folders deep.
  constexpr int kDeepest = 3;
  fs::path root = WholePath(source);
  if (!root.has_filename()) root = root.parent_path();
  const fs::path whole = root;
  for (int depth = 0; depth <= kDeepest; ++depth) {
    const fs::path bots = InAnyCase(InAnyCase(root, "botfiles"), "bots");
    const fs::path within = whole.lexically_relative(root);
    const bool belongs_there =
        depth == 0 || *within.begin() == kScriptsFolder ||
        EqualIgnoringCase(BytesFromPath(*within.begin()), "botfiles");
    if (belongs_there && IsFolder(bots) &&
        !IsFolder(root / PathFromBytes(kBotFilesFolder))) {
      return Utf8FromPath(bots.lexically_relative(root));
    }
    root = root.parent_path();
  }
  return {};
}

bool TellMisspeltFolder(const std::string& source, CommandContext& context) {
  const std::string misspelt = MisspeltBotsFolder(PathFromBytes(source));
  if (misspelt.empty()) return false;
  Fail(context, {.what = "The folder of the bots is called " + misspelt +
                         ", and capitals count for the game on Linux: it "
                         "finds nothing there.",
                 .file = source,
                 .line = 0,
                 .advice = "Rename it " + std::string(kBotFilesFolder) + "."});
  return true;
}

}  // namespace fragsmith
