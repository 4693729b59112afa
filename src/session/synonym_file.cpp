#include "session/synonym_file.h"

#include "install/program/damaged_file.h"
#include "support/files.h"

namespace fragsmith {

SynonymList LoadSynonyms(const std::filesystem::path& program_folder) {
  const auto path = FindFile(program_folder, kSynonymFile);
  if (!path) return {};
  const Result<std::string> bytes = ReadFile(*path);
  return bytes ? ParseSynonyms(*bytes).list : SynonymList();
}

Result<void> SaveSynonyms(const std::filesystem::path& program_folder,
                          const SynonymList& list) {
  if (list.IsEmpty()) return {};
  return SaveKeepingDamaged(
      program_folder / kSynonymFile, FormatSynonyms(list),
      [](std::string_view bytes) { return ParseSynonyms(bytes).is_whole; });
}

}  // namespace fragsmith
