#include "editor/state/program_state.h"

#include <QDir>
#include <QStandardPaths>
#include <utility>

#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "session/synonym_file.h"
#include "support/files.h"
#include "support/no_prompts.h"

namespace fragsmith {

ProgramState::ProgramState(ProgramFolders where, Prompts& whom,
                           RandomSource chance)
    : folders(std::move(where)), prompts(whom), random(std::move(chance)) {}

void ProgramState::LoadIniFile() {
  folder_state =
      LoadSettings(folders.program, settings, prompts, folders.unzip_tool);
}

void ProgramState::LoadLists() {
  lists.models = BuildStandardCatalogue(folders.program, prompts);
  lists.bots = BuildStandardBotList(folders.program, prompts);
  synonyms = LoadSynonyms(folders.program);
  saved_ = AllBytes();
}

void ProgramState::InitByValues() {
  // The tool may be another one.
  silent_packages.clear();
  folder_state = ValidateFolders(settings, folders.program, prompts);
}

void ProgramState::SetGameFolder(const std::string& folder) {
  settings.Q3Baseq3 = folder;
  NoPrompts silent;
  folder_state = ValidateFolders(settings, folders.program, silent);
}

std::filesystem::path ProgramState::FirstFolder(
    const std::filesystem::path& folder) const {
  if (!folders.is_hidden || folder != folders.program) return folder;
  std::filesystem::path documents =
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
          .toStdU16String();
  return IsFolder(documents)
             ? documents
             : std::filesystem::path(QDir::homePath().toStdU16String());
}

std::string ProgramState::AllBytes() const {
  return FormatModelList(lists.models) + FormatBotList(lists.bots) +
         FormatSynonyms(synonyms) + FormatSettings(settings);
}

Result<void> ProgramState::SaveChanges() {
  return AllBytes() == saved_ ? Result<void>() : Save();
}

Result<void> ProgramState::Save(EmptyList empty) {
  Result<void> result;
  for (const Result<void>& done :
       {SaveUserModels(folders.program, lists.models, empty),
        SaveUserBots(folders.program, lists.bots, empty),
        SaveSynonyms(folders.program, synonyms),
        SaveSettings(folders.program, settings)}) {
    if (result && !done) result = done;
  }
  if (result) saved_ = AllBytes();
  return result;
}

UnzipTool ProgramState::Tool(KeepGoing keep_going) {
  UnzipTool tool = {.folder = PathFromBytes(settings.WinZipDir),
                    .keep_going = std::move(keep_going)};
  tool.silent = &silent_packages;
  return tool;
}

}  // namespace fragsmith
