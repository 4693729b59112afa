#include "support/file_replacement.h"

#include <chrono>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// What the names of temporary files end in, behind a "." and a number.
constexpr std::string_view kSuffix = ".fgs-tmp";

Error CannotWrite(const fs::path& target, const std::error_code& reason) {
  return {
      .what = Localized("The file cannot be written: %1.", {reason.message()}),
      .file = Utf8FromPath(target),
      .line = 0,
      .advice =
          Localized("Check the folder, its permissions and the free space.")};
}

fs::path TemporaryName(const fs::path& target) {
  static std::mt19937_64 generator{std::random_device{}()};
  fs::path name = ".";
  name += target.filename();
  name += '.';
  name += std::to_string(generator());
  name += kSuffix;
  return target.parent_path() / name;
}

bool IsTemporaryName(const fs::path& path) {
  const std::string name = Utf8FromPath(path.filename());
  if (!name.starts_with('.') || !name.ends_with(kSuffix)) return false;
  const std::string stem = name.substr(0, name.size() - kSuffix.size());
  const std::size_t dot = stem.find_last_not_of("0123456789");
  return dot > 0 && dot + 1 < stem.size() && stem[dot] == '.';
}

/// Removes what runs that were killed left behind in the folder, once in each
/// run. A temporary file of an hour belongs to nobody any more.
void RemoveLeftOvers(const fs::path& folder) {
  static std::set<fs::path> tidied;
  if (!tidied.insert(folder).second) return;
  std::error_code reason;
  std::error_code ignored;
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    if (!IsTemporaryName(entry->path()) ||
        !fs::is_regular_file(entry->symlink_status(ignored))) {
      continue;
    }
    const fs::file_time_type written = entry->last_write_time(ignored);
    constexpr std::chrono::hours kAge(1);
    if (!ignored && fs::file_time_type::clock::now() - written > kAge) {
      fs::remove(entry->path(), ignored);
    }
  }
}

}  // namespace

FileReplacement::FileReplacement(fs::path target, fs::path temporary,
                                 system::NewFile file)
    : target_(std::move(target)),
      temporary_(std::move(temporary)),
      file_(std::move(file)) {}

FileReplacement::FileReplacement(FileReplacement&& other) noexcept
    : target_(std::move(other.target_)),
      temporary_(std::exchange(other.temporary_, {})),
      file_(std::move(other.file_)) {}

FileReplacement::~FileReplacement() {
  if (temporary_.empty()) return;
  // Not every system removes a file that is open.
  (void)file_.Close();
  std::error_code ignored;
  fs::remove(temporary_, ignored);
}

Result<FileReplacement> FileReplacement::Begin(const fs::path& target) {
  RemoveLeftOvers(target.parent_path());
  constexpr int kTries = 8;
  std::error_code reason;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    fs::path temporary = TemporaryName(target);
    system::NewFile file;
    reason = file.Make(temporary, target);
    if (!reason) {
      return FileReplacement(target, std::move(temporary), std::move(file));
    }
    if (reason != std::errc::file_exists) break;
  }
  return Failure(CannotWrite(target, reason));
}

Result<void> FileReplacement::Write(std::string_view bytes) {
  const std::error_code reason = file_.Append(bytes);
  if (reason) return Failure(CannotWrite(target_, reason));
  return {};
}

Result<void> FileReplacement::Commit() {
  const std::error_code reason = file_.FlushToDisk();
  if (reason) return Failure(CannotWrite(target_, reason));
  return CommitUnflushed();
}

Result<void> FileReplacement::CommitUnflushed() {
  std::error_code reason = file_.Close();
  if (reason) return Failure(CannotWrite(target_, reason));
  reason = system::RenameOver(temporary_, target_);
  if (reason && system::IsInUse(reason) && !IsFolder(target_)) {
    return Failure(
        {.what = Localized("The file cannot be replaced: another program holds "
                           "it open, or it is write-protected."),
         .file = Utf8FromPath(target_),
         .line = 0,
         .advice = Localized(
             "Close it there, then save again. This file was not changed.")});
  }
  if (reason) return Failure(CannotWrite(target_, reason));
  temporary_.clear();
  return {};
}

}  // namespace fragsmith
