#ifndef FRAGSMITH_SESSION_SYNONYM_FILE_H_
#define FRAGSMITH_SESSION_SYNONYM_FILE_H_

#include <filesystem>
#include <string_view>

#include "chat/synonym_list.h"
#include "support/result.h"

namespace fragsmith {

/// Name of the file in the program folder.
inline constexpr std::string_view kSynonymFile = "fgs_synonyms";

/// The user's synonyms; a fresh list where there is no file.
SynonymList LoadSynonyms(const std::filesystem::path& program_folder);

/// Writes the file unless the list is a fresh one; an old one then stays.
Result<void> SaveSynonyms(const std::filesystem::path& program_folder,
                          const SynonymList& list);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_SYNONYM_FILE_H_
