#ifndef FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_H_
#define FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_H_

#include <cstdint>
#include <filesystem>

#include "support/result.h"

namespace fragsmith {

/// A folder for this run alone: only its owner may enter it, it lies in the
/// system's temporary folder, is made when it is first asked for and goes,
/// with all that is in it, when this object goes. What a run that was killed
/// left there goes when a later one makes its own, once it is an hour old.
class TemporaryFolder {
 public:
  TemporaryFolder() = default;
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  Result<std::filesystem::path> GetTempFolder();

 private:
  std::filesystem::path path_;
  std::intptr_t handle_ = -1;  ///< By which it is held.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_H_
