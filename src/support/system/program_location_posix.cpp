#ifndef _WIN32

#include <unistd.h>

#include <cstdlib>

#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <cstdint>
#include <string>
#endif

#include <system_error>

#include "support/system/program_location_system.h"

namespace fragsmith::system {
namespace fs = std::filesystem;
namespace {

/// A folder named by the environment; only a full path counts.
fs::path EnvironmentFolder(const char* name) {
  // Nothing in the program changes the environment after its start.
  const char* value = ::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  fs::path folder = value == nullptr ? "" : value;
  return folder.is_absolute() ? folder : fs::path();
}

}  // namespace

#ifdef __APPLE__

fs::path ExecutablePath() {
  std::uint32_t size = 0;
  ::_NSGetExecutablePath(nullptr, &size);
  std::string path(size, '\0');
  if (::_NSGetExecutablePath(path.data(), &size) != 0) return {};
  std::error_code reason;
  fs::path real = fs::canonical(path.c_str(), reason);
  return reason ? fs::path() : real;
}

fs::path ConfigurationFolder() {
  const fs::path home = EnvironmentFolder("HOME");
  return home.empty() ? home : home / "Library" / "Application Support";
}

#else

fs::path ExecutablePath() {
  std::error_code reason;
  fs::path path = fs::read_symlink("/proc/self/exe", reason);
  return reason ? fs::path() : path;
}

fs::path ConfigurationFolder() {
  fs::path named = EnvironmentFolder("XDG_CONFIG_HOME");
  if (!named.empty()) return named;
  const fs::path home = EnvironmentFolder("HOME");
  return home.empty() ? home : home / ".config";
}

#endif

bool IsWritableFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored) &&
         ::access(path.c_str(), W_OK | X_OK) == 0;
}

bool IsSystemFolder(const fs::path& path) {
  std::error_code reason;
  const fs::path whole = fs::weakly_canonical(path, reason);
  const fs::path below_root = whole.relative_path();
  if (reason || below_root.empty()) return false;
  const fs::path& first = *below_root.begin();
  return first == "usr" || first == "opt";
}

bool IsSuperUser() { return ::geteuid() == 0; }

}  // namespace fragsmith::system

#endif  // _WIN32
