#ifndef FRAGSMITH_GAME_GAME_PATH_H_
#define FRAGSMITH_GAME_GAME_PATH_H_

#include <string>
#include <string_view>

namespace fragsmith {

/// Where a file lies, which decides by what paths the game finds it.
enum class FileHome {
  kLoose,   ///< In a folder, by the rules of the system.
  kPacked,  ///< In a package: letter by letter, but for the case.
};

/// A path as #include looks it up: "/" only, none doubled or in front.
std::string NormalGamePath(std::string_view path);

/// A path as it is compared with those of the files there: loose "./" and "//"
/// count for nothing but at its end, and one with ".." is refused and comes out
/// empty; of a packed file it is in lower case.
std::string PathLookedFor(std::string_view path, FileHome home);

/// The name of a file in front of "_c.c" and the like: "bots/sarge_w.c" is
/// "sarge"'s. Lower case; empty for other names.
std::string BotOfPath(std::string_view path);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_GAME_PATH_H_
