#ifndef FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_
#define FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

/// What replacing a file needs of the operating system beyond the standard
/// library; one source file per family of systems.
namespace fragsmith::system {

/// A file that is made, filled and closed; closed, too, when it is dropped.
class NewFile {
 public:
  NewFile() = default;
  NewFile(NewFile&& other) noexcept;
  NewFile& operator=(NewFile&& other) = delete;
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  /// What was wanted whole was closed before.
  ~NewFile() { (void)Close(); }

  /// Makes an empty file that did not exist before (never through a link),
  /// with the permissions of the model file where that exists.
  [[nodiscard]] std::error_code Make(const std::filesystem::path& path,
                                     const std::filesystem::path& model);

  [[nodiscard]] std::error_code Append(std::string_view bytes) const;

  [[nodiscard]] std::error_code FlushToDisk() const;

  /// Some file systems report only here that bytes could not be written.
  [[nodiscard]] std::error_code Close();

 private:
  static constexpr std::intptr_t kNone = -1;
  std::intptr_t handle_ = kNone;
};

[[nodiscard]] std::error_code RenameOver(const std::filesystem::path& from,
                                         const std::filesystem::path& to);

/// RenameOver() failed since a program holds the file open; only on Windows is
/// that a reason.
bool IsInUse(const std::error_code& reason);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_
