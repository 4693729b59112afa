#include "editor/program_state.h"

#include <utility>

#include "install/bot_list_file.h"
#include "install/model_list_file.h"
#include "install/synonym_file.h"
#include "support/files.h"

namespace fragsmith {

ProgramState::ProgramState(ProgramFolders where, Prompts& whom,
                           RandomSource chance)
    : folders(std::move(where)), prompts(whom), random(std::move(chance)) {}

void ProgramState::LoadIniFile() {
  folder_state = LoadSettings(folders.program, settings, prompts);
}

void ProgramState::LoadLists() {
  lists.models = BuildStandardCatalogue(folders.program, prompts);
  lists.bots = BuildStandardBotList(folders.program, prompts);
  synonyms = LoadSynonyms(folders.program);
}

void ProgramState::InitByValues() {
  folder_state = ValidateFolders(settings, folders.program, prompts);
}

Result<void> ProgramState::Save() const {
  Result<void> result;
  for (const Result<void>& done :
       {SaveUserModels(folders.program, lists.models),
        SaveUserBots(folders.program, lists.bots),
        SaveSynonyms(folders.program, synonyms),
        SaveSettings(folders.program, settings)}) {
    if (result && !done) result = done;
  }
  return result;
}

UnzipTool ProgramState::Tool(KeepGoing keep_going) const {
  return {.folder = PathFromBytes(settings.WinZipDir),
          .keep_going = std::move(keep_going)};
}

}  // namespace fragsmith
