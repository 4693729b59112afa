#include "install/program/damaged_file.h"

#include <string>
#include <system_error>

#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

Result<void> KeepDamaged(const std::filesystem::path& path,
                         const IsWholeFile& is_whole) {
  if (!IsFile(path)) return {};
  const Result<std::string> bytes = ReadFile(path);
  if (bytes && is_whole(*bytes)) return {};
  std::filesystem::path kept = path;
  kept += ".bak";
  if (bytes) return SaveFile(kept, *bytes);
  std::error_code reason;
  std::filesystem::rename(path, kept, reason);
  if (!reason) return {};
  return Failure({.what = Localized("The damaged file cannot be kept: %1.",
                                    {reason.message()}),
                  .file = Utf8FromPath(path),
                  .line = 0,
                  .advice = Localized("Move it away.")});
}

}  // namespace

Result<void> SaveKeepingDamaged(const std::filesystem::path& path,
                                std::string_view bytes,
                                const IsWholeFile& is_whole) {
  Result<void> kept = KeepDamaged(path, is_whole);
  if (!kept) return kept;
  return SaveFile(path, bytes);
}

}  // namespace fragsmith
