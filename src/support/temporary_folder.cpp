#include "support/temporary_folder.h"

#include <chrono>
#include <string_view>
#include <system_error>
#include <vector>

#include "support/files.h"
#include "support/localization.h"
#include "support/system/temporary_folder_system.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kBeginning = "fragsmith-";

/// So old is no folder that its owner has not yet come to hold.
constexpr std::chrono::hours kMinAge(1);

bool IsLeftBehind(const fs::path& folder) {
  std::error_code reason;
  const fs::file_time_type time = fs::last_write_time(folder, reason);
  return !reason && fs::file_time_type::clock::now() - time > kMinAge &&
         system::IsAbandonedFolder(folder);
}

void RemoveLeftBehind(const fs::path& parent) {
  std::vector<fs::path> found;
  std::error_code reason;
  for (fs::directory_iterator entry(parent, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    if (BytesFromPath(entry->path().filename()).starts_with(kBeginning) &&
        IsLeftBehind(entry->path())) {
      found.push_back(entry->path());
    }
  }
  for (const fs::path& folder : found) fs::remove_all(folder, reason);
}

}  // namespace

TemporaryFolder::~TemporaryFolder() {
  if (path_.empty()) return;
  // Where a file holds it, that lies in it.
  system::LetFolderGo(handle_);
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

Result<fs::path> TemporaryFolder::GetTempFolder() {
  if (!path_.empty()) return path_;
  std::error_code reason;
  const fs::path parent = fs::temp_directory_path(reason);
  if (!reason) {
    RemoveLeftBehind(parent);
    reason = system::MakePrivateFolder(parent / kBeginning, path_);
  }
  if (!reason) {
    handle_ = system::HoldFolder(path_);
    return path_;
  }
  path_.clear();
  return Failure({.what = Localized("No temporary folder can be made: %1.",
                                    {reason.message()}),
                  .file = Utf8FromPath(parent),
                  .line = 0,
                  .advice = Localized("Check the system's temporary folder "
                                      "(TMPDIR) and its free space.")});
}

}  // namespace fragsmith
