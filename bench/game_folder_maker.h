#ifndef FRAGSMITH_BENCH_GAME_FOLDER_MAKER_H_
#define FRAGSMITH_BENCH_GAME_FOLDER_MAKER_H_

#include <cstddef>
#include <filesystem>

namespace fragsmith::bench {

/// What a game folder's packages hold.
struct GameFolder {
  std::filesystem::path path;
  std::filesystem::path packages;  ///< Its baseq3.
  std::size_t entry_count = 0;
  std::size_t name_bytes = 0;  ///< Of all entries together.
  std::size_t skin_count = 0;
  std::size_t bot_count = 0;
};

/// Makes a game folder with so many packages as players collect them: of
/// twenty, ten bring skins, four a model, three a bot with its skin, two are
/// maps with hundreds of entries and one is a large set of skins. The files in
/// them are random bytes, stored as they are and without check sums: nothing
/// here unpacks them. The same count makes the same bytes, and the packages of
/// a smaller folder are the first ones of a larger.
GameFolder MakeGameFolder(const std::filesystem::path& folder,
                          std::size_t package_count);

/// Takes the packages out of the memory in which the system keeps what was
/// read of files. Their folder's own data stay there.
void ForgetPackages(const GameFolder& folder);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_GAME_FOLDER_MAKER_H_
