#include "support/temporary_folder.h"

#include <system_error>

#include "support/files.h"
#include "support/temporary_folder_system.h"

namespace fragsmith {

TemporaryFolder::~TemporaryFolder() {
  if (path_.empty()) return;
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

Result<std::filesystem::path> TemporaryFolder::GetTempFolder() {
  if (!path_.empty()) return path_;
  std::error_code reason;
  const std::filesystem::path parent =
      std::filesystem::temp_directory_path(reason);
  if (!reason) {
    reason = system::MakePrivateFolder(parent / "fragsmith-", path_);
  }
  if (!reason) return path_;
  path_.clear();
  return Failure(
      {.what = "No temporary folder can be made: " + reason.message() + ".",
       .file = Utf8FromPath(parent),
       .line = 0,
       .advice = "Check the folder and the free space."});
}

}  // namespace fragsmith
