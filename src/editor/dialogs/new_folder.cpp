#include "editor/dialogs/new_folder.h"

#include <string>
#include <system_error>
#include <utility>

#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::optional<fs::path> MakeNewFolder(const fs::path& parent,
                                      Prompts& prompts) {
  const std::optional<std::string> name =
      prompts.AskText("New folder", "Name of the new folder");
  if (!name || name->empty()) return std::nullopt;
  fs::path folder = parent / PathFromBytes(*name);
  std::error_code reason;
  if (!IsFileName(*name)) {
    reason = std::make_error_code(std::errc::invalid_argument);
  } else {
    fs::create_directory(folder, reason);
  }
  if (!reason && IsFolder(folder)) return folder;
  std::string text =
      "Can't make a folder '" + *name + "' in '" + Utf8FromPath(parent) + "'";
  if (reason) text += ": " + reason.message();
  prompts.Show({.title = std::string(kProgramTitle),
                .text = std::move(text),
                .icon = MessageIcon::kExclamation});
  return std::nullopt;
}

}  // namespace fragsmith
