#include "install/extraction.h"

#include <optional>
#include <string>

#include "install/game_folder.h"
#include "support/child_process.h"
#include "support/code_page.h"
#include "support/files.h"

namespace fragsmith {

ExtractionEnd RunUnzipTool(const UnzipTool& tool,
                           const std::filesystem::path& package,
                           std::string_view file_in_package,
                           const std::filesystem::path& target_folder) {
  const auto program = FindUnzipTool(tool.folder);
  if (!program) return ExtractionEnd::kNotStarted;
  Result<ChildProcess> child =
      ChildProcess::Start(*program, {"-o", BytesFromPath(package),
                                     Utf8FromGameText(file_in_package),
                                     BytesFromPath(target_folder)});
  if (!child) return ExtractionEnd::kNotStarted;

  const auto start = std::chrono::steady_clock::now();
  // How soon a cancelled one is given up.
  constexpr std::chrono::milliseconds kPause(20);
  while (child->IsRunning()) {
    if (std::chrono::steady_clock::now() - start >= tool.patience) {
      return ExtractionEnd::kTooLong;
    }
    if (tool.keep_going && !tool.keep_going()) {
      return ExtractionEnd::kCancelled;
    }
    child->Wait(kPause);
  }
  return ExtractionEnd::kEnded;
}

bool ExtractFromPackage(const UnzipTool& tool,
                        const std::filesystem::path& package,
                        std::string_view file_in_package,
                        const std::filesystem::path& target_folder,
                        Prompts& prompts) {
  const ExtractionEnd end =
      RunUnzipTool(tool, package, file_in_package, target_folder);
  if (end == ExtractionEnd::kTooLong) {
    prompts.Show({.title = "Load failed",
                  .text = "Couldn't load " + Utf8FromGameText(file_in_package) +
                          " from " + Utf8FromPath(package.filename()) +
                          ". Check that the pk3-file still exists.",
                  .icon = MessageIcon::kInformation});
  }
  return end == ExtractionEnd::kEnded;
}

}  // namespace fragsmith
