#ifndef FRAGSMITH_SESSION_DISK_STATE_H_
#define FRAGSMITH_SESSION_DISK_STATE_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace fragsmith {

/// What was in a bot's files when they were last read or written, to notice
/// that somebody else has changed them since.
class DiskState {
 public:
  /// Forgets all others. A file that is not there is remembered as such.
  void Remember(const std::vector<std::filesystem::path>& files);
  void Forget() { contents_.clear(); }

  /// The first of these files that is known and differs now. One that is gone
  /// does not count: nothing of it can be overwritten.
  std::optional<std::filesystem::path> FirstChanged(
      const std::vector<std::filesystem::path>& files) const;

 private:
  /// A hash of each file's content; nothing when it was not there.
  std::map<std::filesystem::path, std::optional<std::size_t>> contents_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_DISK_STATE_H_
