#ifndef FRAGSMITH_SUPPORT_SYSTEM_INSTALLED_PROGRAMS_H_
#define FRAGSMITH_SUPPORT_SYSTEM_INSTALLED_PROGRAMS_H_

#include <filesystem>
#include <string>
#include <vector>

namespace fragsmith {

/// A program of the system's list of what can be removed again.
struct InstalledProgram {
  std::string name;  ///< As the list shows it, in UTF-8.
  std::filesystem::path folder;
};

/// The programs of that list, shops' games among them, that tell their folder,
/// and those that note it in a place of their own: "Steam" and the game. Only
/// Windows has such places; empty elsewhere.
std::vector<InstalledProgram> InstalledPrograms();

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_INSTALLED_PROGRAMS_H_
