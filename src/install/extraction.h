#ifndef FRAGSMITH_INSTALL_EXTRACTION_H_
#define FRAGSMITH_INSTALL_EXTRACTION_H_

#include <chrono>
#include <filesystem>
#include <functional>
#include <string_view>

#include "support/prompts.h"

namespace fragsmith {

/// Called again and again during long work, so that a window can let its
/// events through. False asks for an end of the work.
using KeepGoing = std::function<bool()>;

/// The unzip tool and how long one call of it may take.
struct UnzipTool {
  std::filesystem::path folder;  ///< The setting WinZipDir.
  KeepGoing keep_going;          ///< May be empty.
  std::chrono::milliseconds patience = std::chrono::seconds(5);
};

/// How a call of the unzip tool ended. kEnded says nothing about the file:
/// the caller looks whether it is there.
enum class ExtractionEnd { kEnded, kNotStarted, kTooLong, kCancelled };

/// Has the tool take one file out of a package into the folder, under its
/// bare name and over an older one. The path in the package is 8-bit text
/// with backslashes. A tool that takes too long is left alone.
ExtractionEnd RunUnzipTool(const UnzipTool& tool,
                           const std::filesystem::path& package,
                           std::string_view file_in_package,
                           const std::filesystem::path& target_folder);

/// The same with a message when it takes too long; true when the tool came to
/// its end.
bool ExtractFromPackage(const UnzipTool& tool,
                        const std::filesystem::path& package,
                        std::string_view file_in_package,
                        const std::filesystem::path& target_folder,
                        Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_EXTRACTION_H_
