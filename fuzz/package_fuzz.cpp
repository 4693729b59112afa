#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "fuzz/oracle.h"
#include "install/packages/package.h"
#include "install/packages/package_directory.h"
#include "install/packages/package_writer.h"
#include "install/packages/unzip_command.h"
#include "support/files.h"
#include "support/temporary_folder.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kLimit = std::size_t{1} << 20U;

/// A folder of this run with the package that is tested and a folder for what
/// is taken out of it.
struct Place {
  Place()
      : folder(*temporary.GetTempFolder()),
        package(folder / "some.pk3"),
        target(folder / "target") {}

  TemporaryFolder temporary;
  fs::path folder;
  fs::path package;
  fs::path target;
};

/// Writes the bytes behind as many zeros, which take no room on the disk.
void Write(const fs::path& path, std::string_view bytes,
           std::uint64_t zeros = 0) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.seekp(static_cast<std::streamoff>(zeros));
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::set<std::string> NamesIn(const fs::path& folder) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    names.insert(BytesFromPath(entry.path().filename()));
  }
  return names;
}

/// Whatever an entry is called, it lands in the folder under its last name.
void TakeOut(const Place& place, const std::string& name) {
  fs::create_directory(place.target);
  const Result<void> done = RunUnzipCommand(
      {"-o", BytesFromPath(place.package), name, BytesFromPath(place.target)});
  const std::set<std::string> beside = {"some.pk3", "target"};
  Expect(NamesIn(place.folder) == beside, "nothing is written outside");
  std::set<std::string> wanted;
  if (done) wanted.insert(name.substr(name.find_last_of("/\\") + 1));
  Expect(NamesIn(place.target) == wanted, "the one file is written");
  fs::remove_all(place.target);
}

void ReadHostile(const Place& place, std::string_view bytes,
                 std::uint64_t zeros) {
  Write(place.package, bytes, zeros);
  Notes notes;
  const auto names = ListPackageEntries(place.package, notes);
  ExpectShowable(notes);
  if (!names) return ExpectShowable(Describe(names.error()));
  std::string listing;
  for (const std::string& name : *names) {
    Expect(!name.empty(), "no entry is without a name");
    listing += name + std::string(kLineEnd);
  }
  ExpectEqual(listing, *ListPackage(place.package, notes), "the listing");

  constexpr std::size_t kMaxNames = 4;
  for (std::size_t at = 0; at < std::min(names->size(), kMaxNames); ++at) {
    for (const std::string& name : {names->at(at), ToLower(names->at(at))}) {
      const auto entry = ReadPackageEntry(place.package, name, kLimit);
      if (!entry) {
        ExpectShowable(Describe(entry.error()));
        continue;
      }
      Expect(entry->size() <= kLimit, "no more than was asked for");
    }
  }
  if (!names->empty()) TakeOut(place, names->front());
}

/// Entries cut from the bytes, with names that differ.
std::vector<PackageEntry> EntriesFrom(std::string_view bytes) {
  constexpr std::size_t kNameBytes = 12;
  constexpr std::size_t kEntryBytes = 80;
  constexpr std::size_t kMaxEntries = 8;
  std::vector<PackageEntry> entries;
  std::set<std::string> used;
  for (; !bytes.empty() && entries.size() < kMaxEntries;
       bytes.remove_prefix(std::min(bytes.size(), kEntryBytes))) {
    const std::string name(bytes.substr(0, kNameBytes));
    const bool is_usable =
        name.find_first_of(std::string_view("\0\r\n\\", 4)) ==
            std::string::npos &&
        !name.ends_with('/') && used.insert(ToLower(name)).second;
    if (!is_usable) continue;
    entries.push_back(
        {name, std::string(bytes.substr(name.size(), kEntryBytes))});
  }
  return entries;
}

void WriteAndRead(const Place& place,
                  const std::vector<PackageEntry>& entries) {
  const Result<std::string> package = FormatPackage(entries);
  // The library takes some names in different encodings for the same one.
  if (!package) {
    const bool is_ascii = std::all_of(
        entries.begin(), entries.end(), [](const PackageEntry& entry) {
          return std::all_of(entry.name.begin(), entry.name.end(),
                             [](char letter) { return letter > 0; });
        });
    return Expect(!is_ascii, "plain names can be packed");
  }
  Write(place.package, *package);
  Notes notes;
  const auto names = ListPackageEntries(place.package, notes);
  Expect(names && names->size() == entries.size(), "all entries are listed");
  for (std::size_t at = 0; at < entries.size(); ++at) {
    ExpectEqual(entries[at].name, names->at(at), "name of an entry");
    const auto bytes = ReadPackageEntry(place.package, entries[at].name);
    Expect(bytes.has_value(), "an entry can be read");
    ExpectEqual(entries[at].bytes, *bytes, "bytes of an entry");
  }
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  static const Place place;
  ReadHostile(place, bytes, 0);
  // From this size on the end of the file is looked at first.
  ReadHostile(place, bytes, kMaxDirectoryBytes);
  const std::vector<PackageEntry> entries = EntriesFrom(bytes);
  if (!entries.empty()) WriteAndRead(place, entries);
}

}  // namespace fragsmith
