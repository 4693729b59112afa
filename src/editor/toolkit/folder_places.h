#ifndef FRAGSMITH_EDITOR_TOOLKIT_FOLDER_PLACES_H_
#define FRAGSMITH_EDITOR_TOOLKIT_FOLDER_PLACES_H_

#include <filesystem>
#include <vector>

namespace fragsmith {

/// Folders that are often gone to; empty ones are none.
struct FolderPlaces {
  std::filesystem::path game;
  std::filesystem::path working;
  std::vector<std::filesystem::path> recent;  ///< The latest first.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_FOLDER_PLACES_H_
