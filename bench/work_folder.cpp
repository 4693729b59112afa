#include "bench/work_folder.h"

#include <system_error>

#include "support/system/temporary_folder_system.h"

namespace fragsmith::bench {

WorkFolder::WorkFolder(const std::filesystem::path& parent) {
  const std::error_code reason =
      system::MakePrivateFolder(parent / "fragsmith-bench-", path_);
  if (reason) throw std::system_error(reason, parent.string());
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace fragsmith::bench
