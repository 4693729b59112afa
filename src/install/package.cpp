#include "install/package.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "install/package_directory.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct Discard {
  void operator()(zip_t* archive) const { ::zip_discard(archive); }
};
struct Close {
  void operator()(zip_file_t* file) const { ::zip_fclose(file); }
};
struct Free {
  void operator()(zip_source_t* source) const { ::zip_source_free(source); }
};
using Archive = std::unique_ptr<zip_t, Discard>;
using ArchiveFile = std::unique_ptr<zip_file_t, Close>;
using Source = std::unique_ptr<zip_source_t, Free>;

Error MakeError(std::string what, const std::filesystem::path& path) {
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

std::string TextOf(int code) {
  zip_error_t error;
  ::zip_error_init_with_code(&error, code);
  return TextOf(&error);
}

Result<Archive> Open(const std::filesystem::path& path) {
  // A pipe or a device would keep the library waiting.
  if (!IsFile(path)) {
    return Failure(MakeError("There is no such file.", path));
  }
  if (!HasBoundedDirectory(path)) {
    return Failure(MakeError("The table of contents is too large.", path));
  }
  int code = 0;
  // Checking the whole archive's consistency would take most of the time and
  // refuse packages that the game reads.
  Archive archive(::zip_open(Utf8FromPath(path).c_str(), ZIP_RDONLY, &code));
  if (!archive) return Failure(MakeError(TextOf(code), path));
  return archive;
}

std::uint64_t CountEntries(zip_t* archive) {
  return static_cast<std::uint64_t>(
      std::max<zip_int64_t>(0, ::zip_get_num_entries(archive, 0)));
}

/// The name in the archive's own bytes; empty where there is none.
std::string_view NameOf(zip_t* archive, std::uint64_t index) {
  const char* name = ::zip_get_name(archive, index, ZIP_FL_ENC_RAW);
  return name == nullptr ? std::string_view() : std::string_view(name);
}

/// Gives the names of all entries that can be listed to the function.
template <typename Function>
Result<void> ForEachName(const std::filesystem::path& path, Notes& notes,
                         Function function) {
  const Result<Archive> archive = Open(path);
  if (!archive) return Failure(archive.error());
  const std::uint64_t count = CountEntries(archive->get());
  for (std::uint64_t index = 0; index < count; ++index) {
    const std::string_view name = NameOf(archive->get(), index);
    if (Contains(name, "\r") || Contains(name, "\n")) {
      notes.Add({.file = Utf8FromPath(path.filename()),
                 .line = 0,
                 .text = "An entry with a line end in its name is skipped."});
    } else if (!name.empty()) {
      function(name);
    }
  }
  return {};
}

std::string WithSlashes(std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

std::optional<std::uint64_t> FindEntry(zip_t* archive, std::string_view name) {
  const std::string wanted = WithSlashes(name);
  std::optional<std::uint64_t> in_other_case;
  const std::uint64_t count = CountEntries(archive);
  for (std::uint64_t index = 0; index < count; ++index) {
    const std::string_view raw = NameOf(archive, index);
    if (raw.size() != wanted.size()) continue;
    const std::string entry = WithSlashes(raw);
    if (entry == wanted) return index;
    if (!in_other_case && EqualIgnoringCase(entry, wanted)) {
      in_other_case = index;
    }
  }
  return in_other_case;
}

/// Unpacks piece by piece: the size that the archive tells may be a lie, which
/// the library does not mind.
Result<std::string> Unpack(zip_t* archive, std::uint64_t index,
                           std::size_t limit,
                           const std::filesystem::path& path) {
  const Error too_large = MakeError("The file in the package is larger than " +
                                        std::to_string(limit) + " bytes.",
                                    path);
  zip_stat_t state;
  ::zip_stat_init(&state);
  if (::zip_stat_index(archive, index, 0, &state) != 0 ||
      (state.valid & ZIP_STAT_SIZE) == 0) {
    return Failure(MakeError(::zip_strerror(archive), path));
  }
  if (state.size > limit) return Failure(too_large);
  const ArchiveFile file(::zip_fopen_index(archive, index, 0));
  if (!file) {
    return Failure(MakeError(::zip_strerror(archive), path));
  }
  std::string bytes;
  std::array<char, 65536> piece{};
  for (;;) {
    const zip_int64_t read =
        ::zip_fread(file.get(), piece.data(), piece.size());
    if (read < 0) {
      return Failure(MakeError(::zip_file_strerror(file.get()), path));
    }
    if (read == 0) break;
    bytes.append(piece.data(), static_cast<std::size_t>(read));
    if (bytes.size() > state.size) break;
  }
  if (bytes.size() == state.size) return bytes;
  return Failure(MakeError(
      "The file in the package has another size than the package says.", path));
}

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
      MakeError(::zip_error_strerror(::zip_source_error(source)), {}));
}

}  // namespace

Result<std::string> FormatPackage(const std::vector<PackageEntry>& entries) {
  zip_error_t error;
  ::zip_error_init(&error);
  const Source source(::zip_source_buffer_create(nullptr, 0, 0, &error));
  if (!source) return Failure(MakeError(TextOf(&error), {}));
  Archive archive(::zip_open_from_source(source.get(), ZIP_TRUNCATE, &error));
  if (!archive) return Failure(MakeError(TextOf(&error), {}));
  ::zip_error_fini(&error);
  // The archive frees the source when it goes; the result is read out of it
  // after that.
  ::zip_source_keep(source.get());
  for (const PackageEntry& entry : entries) {
    if (!AddEntry(archive.get(), entry)) {
      return Failure(MakeError(::zip_strerror(archive.get()), {}));
    }
  }
  if (::zip_close(archive.get()) != 0) {
    return Failure(MakeError(::zip_strerror(archive.get()), {}));
  }
  static_cast<void>(archive.release());
  return ReadAll(source.get());
}

Result<void> WritePackage(const std::filesystem::path& path,
                          const std::vector<PackageEntry>& entries) {
  const Result<std::string> bytes = FormatPackage(entries);
  if (bytes) return SaveFile(path, *bytes);
  Error error = bytes.error();
  error.file = Utf8FromPath(path);
  return Failure(std::move(error));
}

Result<std::vector<std::string>> ListPackageEntries(
    const std::filesystem::path& path, Notes& notes) {
  std::vector<std::string> names;
  const Result<void> read = ForEachName(
      path, notes,
      [&names](std::string_view name) { names.emplace_back(name); });
  if (!read) return Failure(read.error());
  return names;
}

Result<std::string> ListPackage(const std::filesystem::path& path,
                                Notes& notes) {
  std::string listing;
  const Result<void> read =
      ForEachName(path, notes, [&listing](std::string_view name) {
        listing += name;
        listing += kLineEnd;
      });
  if (!read) return Failure(read.error());
  return listing;
}

Result<std::string> ReadPackageEntry(const std::filesystem::path& path,
                                     std::string_view name, std::size_t limit) {
  const Result<Archive> archive = Open(path);
  if (!archive) return Failure(archive.error());
  const std::optional<std::uint64_t> index = FindEntry(archive->get(), name);
  if (!index) {
    return Failure(MakeError("The file is not in the package.", path));
  }
  return Unpack(archive->get(), *index, limit, path);
}

}  // namespace fragsmith
