#ifndef FRAGSMITH_INSTALL_PROGRAM_SETTINGS_FILE_H_
#define FRAGSMITH_INSTALL_PROGRAM_SETTINGS_FILE_H_

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

/// The program's settings. Texts are bytes, folders the path's own, the
/// author's data game text; an empty text is unset.
struct ProgramSettings {
  std::string Q3Baseq3;   ///< The game's folder, the one above its baseq3.
  std::string WorkDir;    ///< Where bot files are looked for at first.
  std::string WinZipDir;  ///< The folder of the unzip tool.
  std::string UserName;
  std::string Email;
  std::string Http;
  std::int64_t Bots = 0;  ///< Count of the packages made.
  bool BaseQ3Check = false;

  bool operator==(const ProgramSettings&) const = default;
};

/// Number of the values that the options show; the last of them, the counter,
/// cannot be edited.
inline constexpr int kOptionCount = 7;
inline constexpr int kEditableOptionCount = 6;

/// An option as text, by its index: the fields of ProgramSettings in order.
/// Throws std::out_of_range for an index that is none.
std::string GetOptionValue(const ProgramSettings& settings, int index);

/// Sets one of the editable options. The counter is left as it is.
void SetOptionValue(ProgramSettings& settings, int index,
                    std::string_view value);

/// What reading gave. After an error the settings hold what stood before it.
struct ParsedSettings {
  ProgramSettings settings;
  bool has_error = false;
};

/// Reads by position, not by key: eleven items, of which a comma ends one as
/// a line end does, so that what stands behind a comma shifts the rest.
ParsedSettings ParseSettings(std::string_view bytes);

std::string FormatSettings(const ProgramSettings& settings);

/// What the check of the folders found out.
struct FolderState {
  bool WinZipFound = false;  ///< Bots can be taken out of packages.
  bool Pk3Ready = false;     ///< Icons are taken out of packages.
  /// The icon box is to show the picture for "not in use".
  bool ResetsIcon = false;
  std::filesystem::path CurrentFolder;
};

/// Corrects settings whose folders are not there, each with its message.
FolderState ValidateFolders(ProgramSettings& settings,
                            const std::filesystem::path& program_folder,
                            Prompts& prompts);

/// Name of the settings file in the program folder.
inline constexpr std::string_view kSettingsFile = "fgs.ini";

/// Names the unzip tool's folder that came with the program, which may be
/// empty, where the settings name none.
void UseOwnUnzipTool(const std::filesystem::path& own_folder,
                     ProgramSettings& settings);

/// Reads the settings file of the folder where there is one, then checks the
/// folders. Settings without an unzip tool get the program's own.
FolderState LoadSettings(const std::filesystem::path& program_folder,
                         ProgramSettings& settings, Prompts& prompts,
                         const std::filesystem::path& own_unzip_folder = {});

Result<void> SaveSettings(const std::filesystem::path& program_folder,
                          const ProgramSettings& settings);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_SETTINGS_FILE_H_
