#include "support/file_replacement.h"

#include <random>
#include <string>
#include <system_error>
#include <utility>

#include "support/file_replacement_system.h"
#include "support/files.h"

namespace fragsmith {
namespace {

Error CannotWrite(const std::filesystem::path& target,
                  const std::error_code& reason) {
  return {.what = "The file cannot be written: " + reason.message() + ".",
          .file = Utf8FromPath(target),
          .line = 0,
          .advice = "Check the folder, its permissions and the free space."};
}

std::filesystem::path TemporaryName(const std::filesystem::path& target) {
  static std::mt19937_64 generator{std::random_device{}()};
  std::filesystem::path name = ".";
  name += target.filename();
  name += "." + std::to_string(generator()) + ".tmp";
  return target.parent_path() / name;
}

}  // namespace

FileReplacement::FileReplacement(std::filesystem::path target,
                                 std::filesystem::path temporary)
    : target_(std::move(target)), temporary_(std::move(temporary)) {}

FileReplacement::FileReplacement(FileReplacement&& other) noexcept
    : target_(std::move(other.target_)),
      temporary_(std::exchange(other.temporary_, {})) {}

FileReplacement::~FileReplacement() {
  if (temporary_.empty()) return;
  std::error_code ignored;
  std::filesystem::remove(temporary_, ignored);
}

Result<FileReplacement> FileReplacement::Begin(
    const std::filesystem::path& target) {
  constexpr int kTries = 8;
  std::error_code reason;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    std::filesystem::path temporary = TemporaryName(target);
    reason = system::CreateNewFile(temporary, target);
    if (!reason) return FileReplacement(target, std::move(temporary));
    if (reason != std::errc::file_exists) break;
  }
  return Failure(CannotWrite(target, reason));
}

Result<void> FileReplacement::Write(std::string_view bytes) {
  const std::error_code reason = system::WriteWholeFile(temporary_, bytes);
  if (reason) return Failure(CannotWrite(target_, reason));
  return {};
}

Result<void> FileReplacement::Commit() {
  std::error_code reason = system::FlushToDisk(temporary_);
  if (!reason) reason = system::RenameOver(temporary_, target_);
  if (reason) return Failure(CannotWrite(target_, reason));
  temporary_.clear();
  return {};
}

}  // namespace fragsmith
