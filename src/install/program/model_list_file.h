#ifndef FRAGSMITH_INSTALL_PROGRAM_MODEL_LIST_FILE_H_
#define FRAGSMITH_INSTALL_PROGRAM_MODEL_LIST_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "install/program/damaged_file.h"
#include "install/program/model_catalogue.h"
#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

/// Name of the file in the program folder.
inline constexpr std::string_view kModelListFile = "fgs_models";

/// One skin of the file and the model that wears it.
struct UserSkin {
  std::string model;
  std::string skin;
  std::string PK3File;
  std::string IconFile;

  bool operator==(const UserSkin&) const = default;
};

/// The skins before the first record that is none.
struct ParsedModelList {
  std::vector<UserSkin> skins;
  bool has_error = false;
};

ParsedModelList ParseModelList(std::string_view bytes);

/// The skins that are not the game's own; empty when there is none.
std::string FormatModelList(const ModelCatalogue& catalogue);

/// Adds the skins of the file, where there is one, and sorts the catalogue
/// then.
void LoadUserModels(const std::filesystem::path& program_folder,
                    ModelCatalogue& catalogue, Prompts& prompts);

/// Writes the file when there is something to write.
Result<void> SaveUserModels(const std::filesystem::path& program_folder,
                            const ModelCatalogue& catalogue,
                            EmptyList empty = EmptyList::kKeepsOldFile);

/// The catalogue of a start: the game's models, then the user's.
ModelCatalogue BuildStandardCatalogue(
    const std::filesystem::path& program_folder, Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_MODEL_LIST_FILE_H_
