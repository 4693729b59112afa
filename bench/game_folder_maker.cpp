#include "bench/game_folder_maker.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fragsmith::bench {
namespace fs = std::filesystem;
namespace {

constexpr std::array<std::string_view, 8> kSkinFiles = {
    "icon_#.tga", "head_#.skin", "upper_#.skin", "lower_#.skin",
    "#_head.tga", "#_body.tga",  "#_weapon.tga", "#_glow.jpg"};
constexpr std::array<std::string_view, 19> kModelFiles = {
    "head.md3",     "upper.md3",    "lower.md3",     "head_1.md3",
    "upper_1.md3",  "lower_1.md3",  "animation.cfg", "death1.wav",
    "death2.wav",   "death3.wav",   "drown.wav",     "fall1.wav",
    "falling1.wav", "gasp.wav",     "jump1.wav",     "pain25_1.wav",
    "pain50_1.wav", "pain75_1.wav", "taunt.wav"};
constexpr std::array<std::string_view, 6> kGameModels = {
    "sarge", "visor", "major", "mynx", "anarki", "tankjr"};
constexpr std::array<std::string_view, 16> kSyllables = {
    "ra", "mo", "ke",  "zul", "tor", "vi", "gan", "shi",
    "be", "lo", "dra", "qui", "nek", "fa", "ur",  "sol"};

class Random {
 public:
  explicit Random(std::uint32_t seed) : generator_(seed) {}

  /// From first to last, both included.
  std::size_t Between(std::size_t first, std::size_t last) {
    return first + generator_() % (last - first + 1);
  }

  std::string Name() {
    std::string name;
    for (std::size_t left = Between(2, 4); left > 0; --left) {
      name += kSyllables.at(Between(0, kSyllables.size() - 1));
    }
    return name;
  }

 private:
  std::mt19937 generator_;
};

std::string Number(std::uint64_t number, int bytes) {
  std::string text;
  for (; bytes > 0; --bytes, number >>= 8U) {
    text += static_cast<char>(number & 0xFFU);
  }
  return text;
}

/// The names in one package, and what a scan finds in them.
struct Contents {
  std::vector<std::string> names;
  std::size_t skin_count = 0;
  std::size_t bot_count = 0;
};

class ContentsMaker {
 public:
  ContentsMaker(std::size_t index, Random& random)
      : index_(index), random_(random) {}

  Contents Make() {
    const std::size_t kind = index_ % 20;
    if (kind < 10) {
      AddSkins(GameModel(), random_.Between(2, 6));
    } else if (kind < 14) {
      AddModel();
    } else if (kind < 17) {
      AddSkins(GameModel(), random_.Between(1, 3));
      AddBot();
    } else if (kind < 19) {
      AddMap();
    } else {
      AddSkins(GameModel(), random_.Between(20, 60));
    }
    contents_.names.push_back(UniqueName() + ".txt");
    return std::move(contents_);
  }

 private:
  std::string UniqueName() { return random_.Name() + std::to_string(index_); }

  static std::string PlayerFolder(std::string_view model) {
    return "models/players/" + std::string(model) + "/";
  }

  std::string_view GameModel() {
    return kGameModels.at(random_.Between(0, kGameModels.size() - 1));
  }

  void AddFolders(std::string_view path) {
    for (std::size_t slash = path.find('/'); slash != std::string_view::npos;
         slash = path.find('/', slash + 1)) {
      contents_.names.emplace_back(path.substr(0, slash + 1));
    }
  }

  void AddSkin(const std::string& folder, const std::string& skin) {
    for (const std::string_view file : kSkinFiles) {
      std::string name = folder + std::string(file);
      name.replace(name.find('#'), 1, skin);
      contents_.names.push_back(std::move(name));
    }
    ++contents_.skin_count;
  }

  void AddSkins(std::string_view model, std::size_t count) {
    const std::string folder = PlayerFolder(model);
    AddFolders(folder);
    for (; count > 0; --count) AddSkin(folder, UniqueName());
  }

  void AddModel() {
    const std::string model = UniqueName();
    const std::string folder = PlayerFolder(model);
    AddFolders(folder);
    for (const std::string_view file : kModelFiles) {
      const bool is_sound = file.ends_with(".wav");
      contents_.names.push_back(
          (is_sound ? "sound/player/" + model + "/" : folder) +
          std::string(file));
    }
    for (const char* const skin : {"default", "red", "blue"}) {
      AddSkin(folder, skin);
    }
  }

  void AddBot() {
    const std::string bot = UniqueName();
    AddFolders("botfiles/bots/");
    for (const char* const suffix : {"_c.c", "_i.c", "_t.c", "_w.c"}) {
      contents_.names.push_back("botfiles/bots/" + bot + suffix);
    }
    contents_.names.push_back("scripts/" + bot + ".bot");
    ++contents_.bot_count;
  }

  void AddMap() {
    const std::string map = UniqueName();
    for (const char* const file :
         {"maps/#.bsp", "maps/#.aas", "levelshots/#.jpg", "scripts/#.arena",
          "scripts/#.shader"}) {
      std::string name = file;
      name.replace(name.find('#'), 1, map);
      contents_.names.push_back(std::move(name));
    }
    for (std::size_t left = random_.Between(100, 500); left > 0; --left) {
      contents_.names.push_back("textures/" + map + "/" + random_.Name() +
                                std::to_string(left) + ".tga");
    }
  }

  std::size_t index_;
  Random& random_;
  Contents contents_;
};

constexpr std::size_t kMaxFileSize = 8192;

std::string RandomBytes() {
  std::mt19937 generator(1);
  std::string bytes(8 * kMaxFileSize, '\0');
  for (char& byte : bytes) byte = static_cast<char>(generator() & 0xFFU);
  return bytes;
}

/// The package as a zip archive.
std::string FormatArchive(const std::vector<std::string>& names,
                          Random& random) {
  static const std::string kRandomBytes = RandomBytes();
  std::string archive;
  std::string directory;
  for (const std::string& name : names) {
    const bool is_folder = name.ends_with('/');
    const std::size_t size = is_folder ? 0 : random.Between(64, kMaxFileSize);
    // A moment of the years 1999 to 2004.
    const std::size_t date = random.Between(19, 24) << 9U |
                             random.Between(1, 12) << 5U |
                             random.Between(1, 28);
    const std::size_t time =
        random.Between(0, 23) << 11U | random.Between(0, 59) << 5U;
    const std::string header = Number(20, 2) + Number(0, 4) + Number(time, 2) +
                               Number(date, 2) + Number(0, 4) +
                               Number(size, 4) + Number(size, 4) +
                               Number(name.size(), 2) + Number(0, 2);
    directory += "PK\x01\x02" + Number(20, 2);
    directory += header;
    directory += Number(0, 10) + Number(archive.size(), 4);
    directory += name;
    archive += "PK\x03\x04";
    archive += header;
    archive += name;
    archive.append(kRandomBytes, random.Between(0, 7 * kMaxFileSize), size);
  }
  const std::string count = Number(names.size(), 2);
  const std::string end = "PK\x05\x06" + Number(0, 4) + count + count +
                          Number(directory.size(), 4) +
                          Number(archive.size(), 4) + Number(0, 2);
  return archive + directory + end;
}

}  // namespace

GameFolder MakeGameFolder(const fs::path& folder, std::size_t package_count) {
  GameFolder made = {.path = folder, .packages = folder / "baseq3"};
  fs::create_directories(made.packages);
  for (std::size_t index = 0; index < package_count; ++index) {
    Random random(static_cast<std::uint32_t>(index));
    const Contents contents = ContentsMaker(index, random).Make();
    const std::string bytes = FormatArchive(contents.names, random);
    const std::string name =
        random.Name() + "-" + std::to_string(index) + ".pk3";
    std::ofstream file(made.packages / name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("no room for the packages");
    made.entry_count += contents.names.size();
    for (const std::string& entry : contents.names) {
      made.name_bytes += entry.size();
    }
    made.skin_count += contents.skin_count;
    made.bot_count += contents.bot_count;
  }
  ::sync();
  return made;
}

void ForgetPackages(const GameFolder& folder) {
  for (const fs::directory_entry& entry :
       fs::directory_iterator(folder.packages)) {
    const int file = ::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC);
    ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    ::close(file);
  }
}

}  // namespace fragsmith::bench
