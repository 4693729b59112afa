#ifndef FRAGSMITH_BENCH_WORK_FOLDER_H_
#define FRAGSMITH_BENCH_WORK_FOLDER_H_

#include <filesystem>

namespace fragsmith::bench {

/// A new folder below the parent that goes, with all in it, when this object
/// goes. Throws when it cannot be made: then there is nothing to measure.
class WorkFolder {
 public:
  explicit WorkFolder(const std::filesystem::path& parent =
                          std::filesystem::temp_directory_path());
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder();

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_WORK_FOLDER_H_
