#ifndef FRAGSMITH_EDITOR_STATE_PROGRAM_STATE_H_
#define FRAGSMITH_EDITOR_STATE_PROGRAM_STATE_H_

#include <optional>
#include <string>

#include "chat/synonym_list.h"
#include "install/program/base_scan.h"
#include "install/program/damaged_file.h"
#include "install/program/extraction.h"
#include "install/program/program_folder.h"
#include "install/program/settings_file.h"
#include "session/load_bot.h"
#include "session/save_bot.h"
#include "support/prompts.h"
#include "support/random.h"
#include "support/result.h"
#include "support/temporary_folder.h"

namespace fragsmith {

/// What the program knows beside the bot: settings, lists and where it
/// stands. Filled once at its start, written back at its end.
class ProgramState {
 public:
  ProgramState(ProgramFolders where, Prompts& whom, RandomSource chance);

  /// Settings first, then the lists, in the order of their files' messages.
  void LoadIniFile();
  void LoadLists();

  /// Checks the folders anew after the settings were edited.
  void InitByValues();

  /// Goes back to a game folder of before, without a word.
  void SetGameFolder(const std::string& folder);

  /// Where a box begins that would begin in this folder: in the user's
  /// documents where that is the program folder and hidden.
  std::filesystem::path FirstFolder(const std::filesystem::path& folder) const;

  /// Writes the lists of models, bots and synonyms, then the settings. A file
  /// that cannot be written does not keep the others from it; the first
  /// reason is given.
  Result<void> Save(EmptyList empty = EmptyList::kKeepsOldFile);

  /// Save() after a command, when it has changed anything.
  Result<void> SaveChanges();

  LoadEnvironment Environment() const {
    return {lists.models, lists.bots, prompts, AuthorOf(settings)};
  }

  /// The unzip tool of the settings. While it works, the program lets its
  /// events through.
  UnzipTool Tool(KeepGoing keep_going);

  ProgramFolders folders;
  Prompts& prompts;
  RandomSource random;
  ProgramSettings settings;
  FolderState folder_state;
  BaseLists lists;
  SynonymList synonyms;
  TemporaryFolder temporary;
  SilentPackages silent_packages;

 private:
  /// All that Save() writes.
  std::string AllBytes() const;

  std::string saved_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_PROGRAM_STATE_H_
