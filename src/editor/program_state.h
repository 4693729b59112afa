#ifndef FRAGSMITH_EDITOR_PROGRAM_STATE_H_
#define FRAGSMITH_EDITOR_PROGRAM_STATE_H_

#include <optional>

#include "chat/synonym_list.h"
#include "install/base_scan.h"
#include "install/extraction.h"
#include "install/program_folder.h"
#include "install/settings_file.h"
#include "session/load_bot.h"
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

  /// Writes the lists of models, bots and synonyms, then the settings. A file
  /// that cannot be written does not keep the others from it; the first
  /// reason is given.
  Result<void> Save() const;

  LoadEnvironment Environment() const {
    return {lists.models, lists.bots, prompts};
  }

  /// The unzip tool of the settings. While it works, the program lets its
  /// events through.
  UnzipTool Tool(KeepGoing keep_going) const;

  ProgramFolders folders;
  Prompts& prompts;
  RandomSource random;
  ProgramSettings settings;
  FolderState folder_state;
  BaseLists lists;
  SynonymList synonyms;
  TemporaryFolder temporary;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PROGRAM_STATE_H_
