#include "install/packages/package.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>

#include "install/packages/package_directory.h"
#include "install/packages/zip_archive.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct CloseFile {
  void operator()(zip_file_t* file) const { ::zip_fclose(file); }
};
using ArchiveFile = std::unique_ptr<zip_file_t, CloseFile>;

/// Gives the names of all entries that can be listed to the function.
template <typename Function>
Result<void> ForEachName(const std::filesystem::path& path, Notes& notes,
                         Function function) {
  const Result<ZipArchive> archive = OpenArchive(path);
  if (!archive) return Failure(archive.error());
  const std::uint64_t count = CountEntries(archive->get());
  for (std::uint64_t index = 0; index < count; ++index) {
    const std::string_view name = EntryNameOf(archive->get(), index);
    if (Contains(name, "\r") || Contains(name, "\n")) {
      notes.Add({.file = Utf8FromPath(path.filename()),
                 .line = 0,
                 .text = Localized(
                     "An entry with a line end in its name is skipped.")});
    } else if (!name.empty()) {
      function(name);
    }
  }
  return {};
}

std::optional<std::uint64_t> FindEntry(zip_t* archive, std::string_view name) {
  const std::string wanted = WithSlashes(name);
  std::optional<std::uint64_t> in_other_case;
  // Of several of one name the last counts.
  for (std::uint64_t index = CountEntries(archive); index-- > 0;) {
    const std::string_view raw = EntryNameOf(archive, index);
    if (raw.size() != wanted.size()) continue;
    const std::string entry = WithSlashes(raw);
    if (entry == wanted) return index;
    if (!in_other_case && EqualIgnoringCase(entry, wanted)) {
      in_other_case = index;
    }
  }
  return in_other_case;
}

bool IsMarkedLocked(const zip_stat_t& state) {
  return state.encryption_method != ZIP_EM_NONE;
}

/// What the game does not unpack, as EntryFault has it; empty for what it does.
std::string_view UnreadableByGame(const zip_stat_t& state) {
  switch (state.comp_method) {
    case ZIP_CM_STORE:
    case ZIP_CM_DEFLATE:
      return {};
    case ZIP_CM_DEFLATE64:
      return Localizable("by the method Deflate64");
    case ZIP_CM_BZIP2:
      return Localizable("by the method BZip2");
    case ZIP_CM_LZMA:
      return Localizable("by the method LZMA");
    default:
      return Localizable("by a method of its own");
  }
}

void AppendNumber(std::string& bytes, std::uint64_t number, int count) {
  for (int byte = 0; byte < count; ++byte) {
    bytes += static_cast<char>(number >> (8U * static_cast<unsigned>(byte)));
  }
}

/// An archive of this one file, which is not marked as locked in it.
std::string ArchiveWithoutLock(const zip_stat_t& state,
                               std::string_view packed) {
  std::string facts;
  constexpr int kVersion = 20;
  AppendNumber(facts, kVersion, 2);
  AppendNumber(facts, 0, 2);
  AppendNumber(facts, state.comp_method, 2);
  AppendNumber(facts, 0, 4);
  AppendNumber(facts, state.crc, 4);
  AppendNumber(facts, packed.size(), 4);
  AppendNumber(facts, state.size, 4);
  AppendNumber(facts, 1, 4);
  std::string bytes = "PK\x03\x04" + facts + "x" + std::string(packed);
  const std::size_t contents = bytes.size();
  bytes += "PK\x01\x02";
  AppendNumber(bytes, kVersion, 2);
  constexpr std::size_t kRestOfEntry = 14;
  bytes += facts + std::string(kRestOfEntry, '\0') + "x";
  const std::size_t length = bytes.size() - contents;
  bytes += "PK\x05\x06";
  AppendNumber(bytes, 0, 4);
  AppendNumber(bytes, 1, 2);
  AppendNumber(bytes, 1, 2);
  AppendNumber(bytes, length, 4);
  AppendNumber(bytes, contents, 4);
  AppendNumber(bytes, 0, 2);
  return bytes;
}

Result<std::string> UnpackMarkedLocked(zip_t* archive, std::uint64_t index,
                                       const zip_stat_t& state,
                                       const std::filesystem::path& path);

/// Unpacks piece by piece: the size that the archive tells may be a lie, which
/// the library does not mind. Says on request whether it is damaged, and gives
/// what there is all the same.
Result<std::string> Unpack(zip_t* archive, std::uint64_t index,
                           std::size_t limit, const std::filesystem::path& path,
                           bool* is_damaged = nullptr) {
  zip_stat_t state;
  ::zip_stat_init(&state);
  if (::zip_stat_index(archive, index, 0, &state) != 0 ||
      (state.valid & ZIP_STAT_SIZE) == 0) {
    return Failure(PackageError(::zip_strerror(archive), path));
  }
  if (state.size > limit) {
    return Failure(
        {.what = Localized("The file in the package is larger than %1 bytes, "
                           "the most that is read of one like it: it has %2.",
                           {std::to_string(limit), std::to_string(state.size)}),
         .file = Utf8FromPath(path) + '/' +
                 Utf8FromGameText(EntryNameOf(archive, index)),
         .line = 0,
         .advice = Localized("Check that it is the right one.")});
  }
  if (IsMarkedLocked(state)) {
    return UnpackMarkedLocked(archive, index, state, path);
  }
  const ArchiveFile file(::zip_fopen_index(archive, index, 0));
  if (!file) {
    return Failure(PackageError(::zip_strerror(archive), path));
  }
  std::string bytes;
  std::array<char, 65536> piece{};
  for (;;) {
    const zip_int64_t read =
        ::zip_fread(file.get(), piece.data(), piece.size());
    if (read < 0 && is_damaged != nullptr && bytes.size() == state.size &&
        ::zip_error_code_zip(::zip_file_get_error(file.get())) == ZIP_ER_CRC) {
      *is_damaged = true;
      break;
    }
    if (read < 0) {
      return Failure(PackageError(::zip_file_strerror(file.get()), path));
    }
    if (read == 0) break;
    bytes.append(piece.data(), static_cast<std::size_t>(read));
    if (bytes.size() > state.size) break;
  }
  if (bytes.size() == state.size) return bytes;
  return Failure(PackageError(
      Localized("The file in the package has another size than the package "
                "says."),
      path));
}

/// Some packages are marked so and are not. The game does not look at the
/// mark.
Result<std::string> UnpackMarkedLocked(zip_t* archive, std::uint64_t index,
                                       const zip_stat_t& state,
                                       const std::filesystem::path& path) {
  const Error locked = PackageError(
      Localized("The file in the package is locked with a password."), path);
  const bool has_size = (state.valid & ZIP_STAT_COMP_SIZE) != 0 &&
                        state.comp_size <= kMaxUnpackedBytes;
  const ArchiveFile file(
      has_size ? ::zip_fopen_index(archive, index,
                                   ZIP_FL_COMPRESSED | ZIP_FL_ENCRYPTED)
               : nullptr);
  if (!file) return Failure(locked);
  std::string packed(static_cast<std::size_t>(state.comp_size), '\0');
  if (::zip_fread(file.get(), packed.data(), packed.size()) !=
      static_cast<zip_int64_t>(packed.size())) {
    return Failure(locked);
  }
  const std::string bytes = ArchiveWithoutLock(state, packed);
  zip_error_t error;
  ::zip_error_init(&error);
  ZipSource source(
      ::zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error));
  ZipArchive plain(
      source ? ::zip_open_from_source(source.get(), ZIP_RDONLY, &error)
             : nullptr);
  ::zip_error_fini(&error);
  if (!plain) return Failure(locked);
  // It belongs to the archive now.
  static_cast<void>(source.release());
  // Without its lock a locked file is anything but what its checksum says.
  Result<std::string> unpacked =
      Unpack(plain.get(), 0, kMaxUnpackedBytes, path);
  return unpacked ? std::move(unpacked) : Failure(locked);
}

}  // namespace

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
                                     std::string_view name, std::size_t limit,
                                     PackageReading reading) {
  const Result<ZipArchive> archive = OpenArchive(path);
  if (!archive) return Failure(archive.error());
  const std::optional<std::uint64_t> index = FindEntry(archive->get(), name);
  if (!index) {
    return Failure(
        PackageError(Localized("The file is not in the package."), path));
  }
  if (reading == PackageReading::kStrict) {
    return Unpack(archive->get(), *index, limit, path);
  }
  zip_stat_t state;
  ::zip_stat_init(&state);
  if (::zip_stat_index(archive->get(), *index, 0, &state) == 0 &&
      !UnreadableByGame(state).empty()) {
    return std::string();
  }
  bool is_damaged = false;
  Result<std::string> bytes =
      Unpack(archive->get(), *index, limit, path, &is_damaged);
  return bytes || !IsMarkedLocked(state) ? std::move(bytes) : std::string();
}

Result<std::vector<EntryFault>> FindEntryFaults(
    const std::filesystem::path& path, std::size_t limit,
    const std::function<bool(std::string_view)>& is_wanted) {
  using Kind = EntryFault::Kind;
  const Result<ZipArchive> archive = OpenArchive(path);
  if (!archive) return Failure(archive.error());
  std::vector<EntryFault> faults;
  if (!BytesInFront(path)) {
    faults.push_back({.kind = Kind::kUnopened, .name = {}, .method = {}});
  }
  // Of several of one name the last counts.
  std::set<std::string> seen;
  for (std::uint64_t index = CountEntries(archive->get()); index-- > 0;) {
    const std::string name(EntryNameOf(archive->get(), index));
    if (!is_wanted(name)) continue;
    if (!seen.insert(ToLower(WithSlashes(name))).second) {
      faults.push_back({.kind = Kind::kTwice, .name = name, .method = {}});
      continue;
    }
    zip_stat_t state;
    ::zip_stat_init(&state);
    if (::zip_stat_index(archive->get(), index, 0, &state) != 0) continue;
    const std::string_view method = UnreadableByGame(state);
    bool is_damaged = false;
    if (!method.empty()) {
      faults.push_back(
          {.kind = Kind::kUnreadable, .name = name, .method = method});
      continue;
    }
    const bool is_read =
        Unpack(archive->get(), index, limit, path, &is_damaged).has_value();
    if (!is_read && IsMarkedLocked(state)) {
      faults.push_back({.kind = Kind::kUnreadable,
                        .name = name,
                        .method = Localizable("with a password"),
                        .is_locked = true});
    } else if (is_read && is_damaged) {
      faults.push_back({.kind = Kind::kDamaged, .name = name, .method = {}});
    }
  }
  return faults;
}

}  // namespace fragsmith
