#include "support/files.h"

#include <algorithm>
#include <fstream>
#include <ios>
#include <system_error>
#include <utility>

#include "support/code_page.h"
#include "support/file_replacement.h"
#include "support/localization.h"
#include "support/system/regular_file.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;

#ifdef _WIN32
const std::string_view kForbiddenInFileNames = R"(/\:*?"<>|)";
#else
const std::string_view kForbiddenInFileNames = R"(/\)";
#endif

Result<std::string> ReadFile(const fs::path& path, std::size_t limit) {
  const auto fail = [&path](std::string what, std::string advice) {
    return Failure({.what = std::move(what),
                    .file = Utf8FromPath(path),
                    .line = 0,
                    .advice = std::move(advice)});
  };
  if (std::optional<std::string> bytes = system::ReadRegularFile(path, limit)) {
    return std::move(*bytes);
  }
  std::error_code reason;
  const fs::file_status status = fs::status(path, reason);
  if (!fs::is_regular_file(status)) {
    return fail(fs::exists(status) ? Localized("This is not a file.")
                                   : Localized("There is no such file."),
                Localized("Check the name."));
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    return fail(Localized("The file cannot be read."),
                Localized("Check its permissions."));
  }
  const std::uintmax_t size = fs::file_size(path, reason);
  std::string bytes;
  if (reason || size <= limit) {
    // The size is no promise: the file may grow while it is read.
    std::size_t piece = reason ? 65536 : static_cast<std::size_t>(size) + 1;
    while (file && bytes.size() <= limit) {
      const std::size_t filled = bytes.size();
      bytes.resize(filled + piece);
      file.read(&bytes[filled], static_cast<std::streamsize>(piece));
      bytes.resize(filled + static_cast<std::size_t>(file.gcount()));
      piece = 65536;
    }
    if (file.bad())
      return fail(Localized("The file cannot be read to its end."), "");
  }
  if (bytes.size() > limit || (!reason && size > limit)) {
    return fail(
        Localized("The file is larger than %1 MiB, the most that is read of "
                  "one like it: it has %2 bytes.",
                  {std::to_string(limit >> 20U),
                   std::to_string(std::max<std::uintmax_t>(size, limit + 1))}),
        Localized("Check that it is the right one."));
  }
  return bytes;
}

Result<void> SaveFile(const fs::path& path, std::string_view bytes) {
  Result<FileReplacement> replacement = FileReplacement::Begin(path);
  if (!replacement) return Failure(replacement.error());
  Result<void> done = replacement->Write(bytes);
  if (done) done = replacement->Commit();
  return done;
}

std::string Utf8FromPath(const fs::path& path) {
  return BytesFromPath(fs::path(path).make_preferred());
}

fs::path PathFromGameText(std::string_view text) {
  return PathFromBytes(Utf8FromGameText(text));
}

std::optional<std::string> GameTextFromPath(const fs::path& path) {
  return GameTextFromUtf8(BytesFromPath(path));
}

bool IsFileName(std::string_view name) {
  if (name.empty() || name == "." || name == "..") return false;
  return std::none_of(name.begin(), name.end(), [](char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return byte < 0x20 || byte == 0x7F ||
           Contains(kForbiddenInFileNames, std::string_view(&letter, 1));
  });
}

std::optional<fs::path> FindFile(const fs::path& folder,
                                 std::string_view name) {
  if (!IsFileName(name)) return std::nullopt;
  fs::path exact = folder / PathFromGameText(name);
  // Elsewhere it may be there in another spelling, which it is to keep.
  if (kCaseCounts && IsFile(exact)) return exact;
  for (const fs::path& other : ListFiles(folder, name)) {
    const std::optional<std::string> text = GameTextFromPath(other);
    if (text && EqualIgnoringCase(*text, name)) return folder / other;
  }
  return std::nullopt;
}

std::vector<fs::path> ListFiles(const fs::path& folder,
                                std::string_view suffix) {
  // Each with the key that it is sorted by.
  std::vector<std::pair<std::string, fs::path>> files;
  std::error_code reason;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    fs::path name = entry->path().filename();
    const std::optional<std::string> text = GameTextFromPath(name);
    // A name beyond the code page cannot be one that is looked for, but its
    // suffix is plain ASCII all the same.
    std::string key = ToLower(text ? *text : Utf8FromPath(name));
    std::error_code ignored;
    if (EndsWithIgnoringCase(key, suffix) && entry->is_regular_file(ignored)) {
      files.emplace_back(std::move(key), std::move(name));
    }
  }
  std::sort(files.begin(), files.end());
  std::vector<fs::path> names;
  names.reserve(files.size());
  for (auto& [key, name] : files) names.push_back(std::move(name));
  return names;
}

bool IsFile(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

fs::path WholePath(const fs::path& path) {
  std::error_code reason;
  const fs::path whole = fs::absolute(path.empty() ? "." : path, reason);
  return (reason ? path : whole).lexically_normal();
}

}  // namespace fragsmith
