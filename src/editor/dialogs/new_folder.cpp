#include "editor/dialogs/new_folder.h"

#include <QCoreApplication>
#include <QString>
#include <string>
#include <system_error>

#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::optional<fs::path> MakeNewFolder(const fs::path& parent,
                                      Prompts& prompts) {
  const std::optional<std::string> name = prompts.AskText(
      QCoreApplication::translate("NewFolder", "New folder").toStdString(),
      QCoreApplication::translate("NewFolder", "Name of the new folder")
          .toStdString());
  if (!name || name->empty()) return std::nullopt;
  fs::path folder = parent / PathFromBytes(*name);
  std::error_code reason;
  if (!IsFileName(*name)) {
    reason = std::make_error_code(std::errc::invalid_argument);
  } else {
    fs::create_directory(folder, reason);
  }
  if (!reason && IsFolder(folder)) return folder;
  const QString text = QCoreApplication::translate(
                           "NewFolder", "Can't make a folder '%1' in '%2'")
                           .arg(QString::fromStdString(*name),
                                QString::fromStdString(Utf8FromPath(parent)));
  const std::string why = reason ? ": " + reason.message() : std::string();
  prompts.Show({.title = std::string(kProgramTitle),
                .text = text.toStdString() + why,
                .icon = MessageIcon::kExclamation});
  return std::nullopt;
}

}  // namespace fragsmith
