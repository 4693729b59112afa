#include "game/game_path.h"

#include <algorithm>

#include "model/file_names.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

std::string WithSlashes(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

}  // namespace

std::string NormalGamePath(std::string_view path) {
  std::string normal;
  for (char letter : path) {
    if (letter == '\\') letter = '/';
    const bool is_doubled =
        letter == '/' && (normal.empty() || normal.back() == '/');
    if (!is_doubled) normal += letter;
  }
  return normal;
}

std::string PathLookedFor(std::string_view path, FileHome home) {
  if (home == FileHome::kPacked) return ToLower(WithSlashes(path));
  if (Contains(path, "..")) return {};
  std::string normal;
  std::string rest = WithSlashes(path) + "/";
  // A slash at the end makes a folder of it, and no file is one.
  const bool is_folder = rest.ends_with("//") || rest.ends_with("/./");
  for (std::size_t end = rest.find('/'); end != std::string::npos;
       end = rest.find('/')) {
    const std::string part = rest.substr(0, end);
    rest.erase(0, end + 1);
    if (part.empty() || part == ".") continue;
    normal += (normal.empty() ? "" : "/") + part;
  }
  if (is_folder) normal += '/';
  return kCaseCounts ? normal : ToLower(normal);
}

std::string BotOfPath(std::string_view path) {
  constexpr std::size_t kEnd = kCharacterEnd.size();
  std::string name = ToLower(WithSlashes(path));
  name.erase(0, name.rfind('/') + 1);
  if (name.size() <= kEnd || name[name.size() - kEnd] != '_' ||
      !name.ends_with(".c")) {
    return {};
  }
  return name.substr(0, name.size() - kEnd);
}

}  // namespace fragsmith
