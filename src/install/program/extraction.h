#ifndef FRAGSMITH_INSTALL_PROGRAM_EXTRACTION_H_
#define FRAGSMITH_INSTALL_PROGRAM_EXTRACTION_H_

#include <chrono>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "support/prompts.h"

namespace fragsmith {

/// Called again and again during long work, so that a window can let its
/// events through. False asks for an end of the work.
using KeepGoing = std::function<bool()>;

/// Packages at which the unzip tool took too long.
using SilentPackages = std::set<std::filesystem::path>;

/// The unzip tool and how long one call of it may take.
struct UnzipTool {
  std::filesystem::path folder;  ///< The setting WinZipDir.
  KeepGoing keep_going = {};     ///< May be empty.
  std::chrono::milliseconds patience = std::chrono::seconds(5);
  /// Where what takes the tool too long is kept; may be missing. Nobody asked
  /// for an icon: it is not tried for in such a package again.
  SilentPackages* silent = nullptr;
};

/// How a call of the unzip tool ended. kEnded says nothing about the file:
/// the caller looks whether it is there.
enum class ExtractionEnd { kEnded, kNotStarted, kTooLong, kCancelled };

struct Extraction {
  ExtractionEnd end = ExtractionEnd::kEnded;
  /// Why the tool was not started or given up: sentences, UTF-8.
  std::string reason = {};
};

/// Has the tool take one file out of a package into the folder, under its
/// bare name and over an older one. The path in the package is 8-bit text
/// with backslashes. A tool that takes too long is left alone.
Extraction RunUnzipTool(const UnzipTool& tool,
                        const std::filesystem::path& package,
                        std::string_view file_in_package,
                        const std::filesystem::path& target_folder);

/// The same with a message when it is not started or takes too long.
Extraction ExtractFromPackage(const UnzipTool& tool,
                              const std::filesystem::path& package,
                              std::string_view file_in_package,
                              const std::filesystem::path& target_folder,
                              Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_EXTRACTION_H_
