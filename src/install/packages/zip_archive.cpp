#include "install/packages/zip_archive.h"

#include <algorithm>
#include <utility>

#include "install/packages/package_directory.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {

Error PackageError(std::string what, const std::filesystem::path& path) {
  return {.what = std::move(what),
          .file = Utf8FromPath(path),
          .line = 0,
          .advice = {}};
}

std::string TextOf(zip_error_t* error) {
  std::string text = ::zip_error_strerror(error);
  ::zip_error_fini(error);
  return text;
}

Result<ZipArchive> OpenArchive(const std::filesystem::path& path) {
  // A pipe or a device would keep the library waiting.
  if (!IsFile(path)) {
    return Failure(PackageError(Localized("There is no such file."), path));
  }
  if (!HasBoundedDirectory(path)) {
    return Failure(
        PackageError(Localized("The table of contents is too large."), path));
  }
  zip_error_t error;
  ::zip_error_init(&error);
  constexpr zip_int64_t kToTheEnd = -1;
  ZipSource source(::zip_source_file_create(Utf8FromPath(path).c_str(),
                                            BytesInFront(path).value_or(0),
                                            kToTheEnd, &error));
  if (!source) return Failure(PackageError(TextOf(&error), path));
  // Checking the whole archive's consistency would take most of the time and
  // refuse packages that the game reads.
  ZipArchive archive(::zip_open_from_source(source.get(), ZIP_RDONLY, &error));
  if (!archive) return Failure(PackageError(TextOf(&error), path));
  ::zip_error_fini(&error);
  // It belongs to the archive now.
  static_cast<void>(source.release());
  return archive;
}

std::uint64_t CountEntries(zip_t* archive) {
  return static_cast<std::uint64_t>(
      std::max<zip_int64_t>(0, ::zip_get_num_entries(archive, 0)));
}

std::string_view EntryNameOf(zip_t* archive, std::uint64_t index) {
  const char* name = ::zip_get_name(archive, index, ZIP_FL_ENC_RAW);
  return name == nullptr ? std::string_view() : std::string_view(name);
}

std::string WithSlashes(std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

}  // namespace fragsmith
