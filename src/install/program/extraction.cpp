#include "install/program/extraction.h"

#include <optional>
#include <string>

#include "install/program/game_folder.h"
#include "support/child_process.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/numbers.h"

namespace fragsmith {

Extraction RunUnzipTool(const UnzipTool& tool,
                        const std::filesystem::path& package,
                        std::string_view file_in_package,
                        const std::filesystem::path& target_folder) {
  const auto program = FindUnzipTool(tool.folder);
  if (!program) {
    return {ExtractionEnd::kNotStarted,
            Localized("There is no unzip tool in '%1'.",
                      {Utf8FromPath(tool.folder)})};
  }
  Result<ChildProcess> child =
      ChildProcess::Start(*program, {"-o", BytesFromPath(package),
                                     Utf8FromGameText(file_in_package),
                                     BytesFromPath(target_folder)});
  if (!child) return {ExtractionEnd::kNotStarted, Describe(child.error())};

  const auto start = std::chrono::steady_clock::now();
  // How soon a cancelled one is given up.
  constexpr std::chrono::milliseconds kPause(20);
  while (child->IsRunning()) {
    if (std::chrono::steady_clock::now() - start >= tool.patience) {
      if (tool.silent != nullptr) tool.silent->insert(package);
      const std::chrono::duration<double> seconds = tool.patience;
      return {ExtractionEnd::kTooLong,
              Localized("'%1' did not come to its end within %2 seconds.",
                        {Utf8FromPath(*program),
                         PlainDecimal(seconds.count(), kFloatDigits)})};
    }
    if (tool.keep_going && !tool.keep_going()) {
      return {ExtractionEnd::kCancelled};
    }
    child->Wait(kPause);
  }
  return {};
}

Extraction ExtractFromPackage(const UnzipTool& tool,
                              const std::filesystem::path& package,
                              std::string_view file_in_package,
                              const std::filesystem::path& target_folder,
                              Prompts& prompts) {
  Extraction extraction =
      RunUnzipTool(tool, package, file_in_package, target_folder);
  if (!extraction.reason.empty()) {
    prompts.Show({.title = "Load failed",
                  .text = "Couldn't load " + Utf8FromGameText(file_in_package) +
                          " from " + Utf8FromPath(package.filename()) +
                          ". Check that the pk3-file still exists. " +
                          extraction.reason,
                  .icon = MessageIcon::kInformation});
  }
  return extraction;
}

}  // namespace fragsmith
