#ifndef FRAGSMITH_SUPPORT_FILE_REPLACEMENT_H_
#define FRAGSMITH_SUPPORT_FILE_REPLACEMENT_H_

#include <filesystem>
#include <string_view>

#include "support/result.h"
#include "support/system/file_replacement_system.h"

namespace fragsmith {

/// A new, empty file beside the target that takes the target's place when it
/// is complete. Until Commit() succeeds the target is untouched; a
/// replacement that is dropped removes its file. The file is named
/// ".TARGET.NUMBER.fgs-tmp"; one that a killed run left behind goes with the
/// first replacement in its folder an hour later or more.
class FileReplacement {
 public:
  /// Makes the temporary file; nobody else's file is ever opened for it.
  static Result<FileReplacement> Begin(const std::filesystem::path& target);

  FileReplacement(FileReplacement&& other) noexcept;
  FileReplacement& operator=(FileReplacement&& other) = delete;
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  ~FileReplacement();

  /// Puts the bytes behind those that the temporary file has.
  Result<void> Write(std::string_view bytes);

  /// Flushes the temporary file to the disk and renames it over the target.
  Result<void> Commit();

  /// The same without the flush, which takes longer than all the rest: for
  /// copies of what is safe elsewhere.
  Result<void> CommitUnflushed();

 private:
  FileReplacement(std::filesystem::path target, std::filesystem::path temporary,
                  system::NewFile file);

  std::filesystem::path target_;
  std::filesystem::path temporary_;
  system::NewFile file_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_FILE_REPLACEMENT_H_
