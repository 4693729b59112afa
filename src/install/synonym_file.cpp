#include "install/synonym_file.h"

#include "install/damaged_file.h"
#include "support/files.h"

namespace fragsmith {

SynonymList LoadSynonyms(const std::filesystem::path& program_folder) {
  const Result<std::string> bytes = ReadFile(program_folder / kSynonymFile);
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
