#include "install/packages/package_writer.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

#include "install/packages/zip_archive.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool AddEntry(zip_t* archive, const PackageEntry& entry) {
  zip_source_t* source =
      ::zip_source_buffer(archive, entry.bytes.data(), entry.bytes.size(), 0);
  if (source == nullptr) return false;
  const zip_int64_t index =
      ::zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_GUESS);
  if (index < 0) {
    ::zip_source_free(source);
    return false;
  }
  return ::zip_set_file_compression(archive, static_cast<zip_uint64_t>(index),
                                    ZIP_CM_DEFLATE, 0) == 0;
}

Result<std::string> ReadAll(zip_source_t* source) {
  zip_stat_t state;
  ::zip_stat_init(&state);
  std::string bytes;
  const bool is_open =
      ::zip_source_stat(source, &state) == 0 && ::zip_source_open(source) == 0;
  if (is_open) {
    bytes.resize(static_cast<std::size_t>(state.size));
    const zip_int64_t read =
        ::zip_source_read(source, bytes.data(), bytes.size());
    ::zip_source_close(source);
    if (read == static_cast<zip_int64_t>(bytes.size())) return bytes;
  }
  return Failure(
      PackageError(::zip_error_strerror(::zip_source_error(source)), {}));
}

Error ErrorOf(zip_t* archive) {
  return PackageError(::zip_strerror(archive), {});
}

/// The bytes of an archive after the function has changed it.
template <typename Function>
Result<std::string> Changed(std::string_view bytes, int flags,
                            Function change) {
  zip_error_t error;
  ::zip_error_init(&error);
  // The library gets bytes of its own: an archive whose first entries stay is
  // written into a clone of the source, which frees even what it was only lent.
  void* const copy = bytes.empty() ? nullptr : std::malloc(bytes.size());
  if (copy != nullptr) std::memcpy(copy, bytes.data(), bytes.size());
  if (copy == nullptr && !bytes.empty()) {
    return Failure(PackageError(Localized("There is not enough memory."), {}));
  }
  const ZipSource source(
      ::zip_source_buffer_create(copy, bytes.size(), 1, &error));
  if (!source) {
    std::free(copy);
    return Failure(PackageError(TextOf(&error), {}));
  }
  // NOLINTNEXTLINE(clang-analyzer-unix.Malloc): the source frees the copy.
  ZipArchive archive(::zip_open_from_source(source.get(), flags, &error));
  if (!archive) return Failure(PackageError(TextOf(&error), {}));
  ::zip_error_fini(&error);
  // The archive frees the source when it goes; the result is read out of it
  // after that.
  ::zip_source_keep(source.get());
  const Result<void> changed = change(archive.get());
  if (!changed) return Failure(changed.error());
  if (::zip_close(archive.get()) != 0) return Failure(ErrorOf(archive.get()));
  // Closing it has freed it.
  static_cast<void>(archive.release());
  return ReadAll(source.get());
}

/// The only entry of the name, for the game whichever of several it takes.
Result<std::uint64_t> FindOnlyEntry(zip_t* archive, std::string_view name) {
  const std::string wanted = WithSlashes(name);
  std::optional<std::uint64_t> found;
  const std::uint64_t count = CountEntries(archive);
  for (std::uint64_t index = 0; index < count; ++index) {
    if (!EqualIgnoringCase(WithSlashes(EntryNameOf(archive, index)), wanted)) {
      continue;
    }
    if (found) {
      return Failure(PackageError(
          Localized("The package has the file several times."), {}));
    }
    found = index;
  }
  if (!found) {
    return Failure(
        PackageError(Localized("The file is not in the package."), {}));
  }
  return *found;
}

Result<void> ReplaceEntry(zip_t* archive, std::string_view name,
                          std::string_view bytes) {
  const Result<std::uint64_t> index = FindOnlyEntry(archive, name);
  if (!index) return Failure(index.error());
  zip_stat_t state;
  ::zip_stat_init(&state);
  const bool is_stored = ::zip_stat_index(archive, *index, 0, &state) == 0 &&
                         state.comp_method == ZIP_CM_STORE;
  zip_source_t* source =
      ::zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
  if (source == nullptr) return Failure(ErrorOf(archive));
  if (::zip_file_replace(archive, *index, source, 0) != 0) {
    ::zip_source_free(source);
    return Failure(ErrorOf(archive));
  }
  if (::zip_set_file_compression(
          archive, *index, is_stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0) != 0) {
    return Failure(ErrorOf(archive));
  }
  return {};
}

/// The same, of the file.
Error InFile(Error error, const std::filesystem::path& path) {
  error.file = Utf8FromPath(path);
  return error;
}

}  // namespace

Result<std::string> FormatPackage(const std::vector<PackageEntry>& entries) {
  return Changed({}, ZIP_TRUNCATE, [&entries](zip_t* archive) -> Result<void> {
    for (const PackageEntry& entry : entries) {
      if (!AddEntry(archive, entry)) return Failure(ErrorOf(archive));
    }
    return {};
  });
}

Result<void> WritePackage(const std::filesystem::path& path,
                          const std::vector<PackageEntry>& entries) {
  const Result<std::string> bytes = FormatPackage(entries);
  if (bytes) return SaveFile(path, *bytes);
  return Failure(InFile(bytes.error(), path));
}

Result<std::string> PackageWith(
    const std::filesystem::path& path,
    const std::map<std::string, std::string>& contents) {
  // Refuses what would not be opened for reading either. Closed again: Windows
  // replaces no file that is open.
  if (const Result<ZipArchive> readable = OpenArchive(path); !readable) {
    return Failure(readable.error());
  }
  const Result<std::string> old = ReadFile(path);
  if (!old) return Failure(old.error());
  Result<std::string> bytes =
      Changed(*old, 0, [&contents](zip_t* archive) -> Result<void> {
        for (const auto& [name, content] : contents) {
          Result<void> replaced = ReplaceEntry(archive, name, content);
          if (!replaced) return replaced;
        }
        return {};
      });
  if (!bytes) return Failure(InFile(bytes.error(), path));
  return bytes;
}

Result<void> ReplacePackageEntries(
    const std::filesystem::path& path,
    const std::map<std::string, std::string>& contents) {
  const Result<std::string> bytes = PackageWith(path, contents);
  if (!bytes) return Failure(bytes.error());
  return SaveFile(path, *bytes);
}

}  // namespace fragsmith
