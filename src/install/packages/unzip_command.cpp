#include "install/packages/unzip_command.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>

#include "install/packages/package.h"
#include "support/code_page.h"
#include "support/file_replacement.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kSlashes = "/\\";

tl::unexpected<Error> Refusal(std::string what, std::string file = {}) {
  return Failure({.what = std::move(what),
                  .file = std::move(file),
                  .line = 0,
                  .advice = {}});
}

std::string_view BareName(std::string_view path) {
  const std::size_t slash = path.find_last_of(kSlashes);
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool ClimbsOut(std::string_view path) {
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(kSlashes), path.size());
    if (path.substr(0, end) == "..") return true;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return false;
}

Result<std::string> ReadEntry(const std::filesystem::path& package,
                              const std::string& file) {
  Result<std::string> bytes = ReadPackageEntry(package, file);
  if (bytes) return bytes;
  const std::optional<std::string> text = GameTextFromUtf8(file);
  if (!text || *text == file) return bytes;
  return ReadPackageEntry(package, *text);
}

}  // namespace

Result<void> RunUnzipCommand(const std::vector<std::string>& arguments) {
  if (arguments.size() != 4 || arguments[0] != "-o") {
    return Refusal(kUnzipUsage);
  }
  const std::string& file = arguments[2];
  const std::string_view name = BareName(file);
  if (!IsFileName(name) || ClimbsOut(file)) {
    return Refusal("This is not the path of a file in a package.", file);
  }
  const std::filesystem::path folder = PathFromBytes(arguments[3]);
  if (!IsFolder(folder)) {
    return Refusal("There is no such folder.", arguments[3]);
  }
  const Result<std::string> bytes =
      ReadEntry(PathFromBytes(arguments[1]), file);
  if (!bytes) return Failure(bytes.error());
  Result<FileReplacement> target =
      FileReplacement::Begin(folder / PathFromBytes(name));
  if (!target) return Failure(target.error());
  const Result<void> written = target->Write(*bytes);
  return written ? target->CommitUnflushed() : written;
}

}  // namespace fragsmith
