#include "bench/package_peers.h"

#include <archive.h>
#include <archive_entry.h>
#include <dirent.h>
#include <fcntl.h>
#include <minizip/unzip.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

#include <array>
#include <cstring>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/child_program.h"
#include "support/text.h"

namespace fragsmith::bench {
namespace fs = std::filesystem;
namespace {

/// The number of so many bytes, lowest first.
std::size_t NumberAt(const char* bytes, int count) {
  std::size_t number = 0;
  while (count-- > 0) {
    number = number << 8U | static_cast<unsigned char>(bytes[count]);
  }
  return number;
}

void Count(std::string_view name, Listing& listing) {
  ++listing.entries;
  listing.name_bytes += name.size();
}

constexpr std::size_t kEndBytes = 22;

/// The record at the end of a package, which tells where the table is.
struct EndRecord {
  std::array<char, kEndBytes> bytes{};

  bool is_one() const {
    return std::memcmp(bytes.data(), "PK\x05\x06", 4) == 0;
  }
  std::size_t directory_bytes() const { return NumberAt(&bytes[12], 4); }
  std::size_t directory_place() const { return NumberAt(&bytes[16], 4); }
};

/// Calls the function with each name of the table.
template <typename Function>
void ForEachName(std::string_view directory, Function function) {
  constexpr std::size_t kEntryBytes = 46;
  while (directory.size() > kEntryBytes) {
    const std::size_t name = NumberAt(&directory[28], 2);
    const std::size_t behind =
        NumberAt(&directory[30], 2) + NumberAt(&directory[32], 2);
    function(directory.substr(kEntryBytes, name));
    directory.remove_prefix(kEntryBytes + name + behind);
  }
}

void WalkBarely(int file, std::string& directory, Listing& listing) {
  EndRecord end;
  const off_t size = ::lseek(file, 0, SEEK_END);
  if (::pread(file, end.bytes.data(), kEndBytes, size - off_t{kEndBytes}) !=
          ssize_t{kEndBytes} ||
      !end.is_one()) {
    return;
  }
  directory.resize(end.directory_bytes());
  const ssize_t read = ::pread(file, directory.data(), directory.size(),
                               static_cast<off_t>(end.directory_place()));
  if (read != static_cast<ssize_t>(directory.size())) return;
  ForEachName(directory,
              [&listing](std::string_view name) { Count(name, listing); });
}

Listing RunZipinfo(const std::string& packages) {
  Listing listing;
  const std::optional<std::string> output =
      RunProgram({"zipinfo", "-1", packages});
  if (!output) return listing;
  LineReader lines(*output);
  while (const auto line = lines.Next()) {
    // With several packages a blank line stands behind each.
    if (!line->empty()) Count(*line, listing);
  }
  return listing;
}

/// Calls the function with the path of each file in the folder.
template <typename Function>
void ForEachPackage(const fs::path& packages, Function function) {
  for (const fs::directory_entry& entry : fs::directory_iterator(packages)) {
    function(entry.path());
  }
}

}  // namespace

Listing WalkPlainly(const fs::path& packages) {
  Listing listing;
  ForEachPackage(packages, [&](const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EndRecord end;
    file.seekg(-std::streamoff{kEndBytes}, std::ios::end);
    file.read(end.bytes.data(), kEndBytes);
    if (!file || !end.is_one()) return;
    std::string directory(end.directory_bytes(), '\0');
    file.seekg(static_cast<std::streamoff>(end.directory_place()));
    file.read(directory.data(), static_cast<std::streamsize>(directory.size()));
    if (!file) return;
    std::vector<std::string> names;
    ForEachName(directory,
                [&names](std::string_view name) { names.emplace_back(name); });
    for (const std::string& name : names) Count(name, listing);
  });
  return listing;
}

Listing WalkBarely(const fs::path& packages) {
  Listing listing;
  std::string directory;
  DIR* const folder = ::opendir(packages.c_str());
  if (folder == nullptr) return listing;
  while (const dirent* const entry = ::readdir(folder)) {
    if (!std::string_view(entry->d_name).ends_with(".pk3")) continue;
    const int file =
        ::openat(::dirfd(folder), entry->d_name, O_RDONLY | O_CLOEXEC);
    if (file < 0) continue;
    WalkBarely(file, directory, listing);
    ::close(file);
  }
  ::closedir(folder);
  return listing;
}

Listing ListByLibzip(const fs::path& packages) {
  Listing listing;
  ForEachPackage(packages, [&](const fs::path& path) {
    zip_t* const archive = ::zip_open(path.c_str(), ZIP_RDONLY, nullptr);
    if (archive == nullptr) return;
    const zip_int64_t count = ::zip_get_num_entries(archive, 0);
    for (zip_int64_t index = 0; index < count; ++index) {
      Count(::zip_get_name(archive, static_cast<zip_uint64_t>(index),
                           ZIP_FL_ENC_RAW),
            listing);
    }
    ::zip_discard(archive);
  });
  return listing;
}

Listing ListByLibarchive(const fs::path& packages) {
  Listing listing;
  ForEachPackage(packages, [&](const fs::path& path) {
    archive* const package = ::archive_read_new();
    ::archive_read_support_format_zip_seekable(package);
    constexpr std::size_t kPiece = 10240;
    archive_entry* entry = nullptr;
    if (::archive_read_open_filename(package, path.c_str(), kPiece) ==
        ARCHIVE_OK) {
      while (::archive_read_next_header(package, &entry) == ARCHIVE_OK) {
        Count(::archive_entry_pathname(entry), listing);
      }
    }
    ::archive_read_free(package);
  });
  return listing;
}

Listing ListByMinizip(const fs::path& packages) {
  Listing listing;
  ForEachPackage(packages, [&](const fs::path& path) {
    unzFile const package = ::unzOpen64(path.c_str());
    if (package == nullptr) return;
    for (int state = ::unzGoToFirstFile(package); state == UNZ_OK;
         state = ::unzGoToNextFile(package)) {
      std::array<char, 1024> name{};
      unz_file_info64 info;
      if (::unzGetCurrentFileInfo64(package, &info, name.data(), name.size(),
                                    nullptr, 0, nullptr, 0) == UNZ_OK) {
        Count(name.data(), listing);
      }
    }
    ::unzClose(package);
  });
  return listing;
}

Listing ListByZipinfo(const fs::path& packages) {
  // It looks for the pattern itself, without a shell.
  return RunZipinfo((packages / "*.pk3").string());
}

Listing ListByZipinfoEach(const fs::path& packages) {
  Listing listing;
  ForEachPackage(packages, [&listing](const fs::path& path) {
    const Listing one = RunZipinfo(path.string());
    listing.entries += one.entries;
    listing.name_bytes += one.name_bytes;
  });
  return listing;
}

}  // namespace fragsmith::bench
