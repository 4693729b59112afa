#ifndef FRAGSMITH_INPLACE_NAMED_FILES_H_
#define FRAGSMITH_INPLACE_NAMED_FILES_H_

#include <string>
#include <vector>

#include "model/parameter_id.h"
#include "session/bot_origin.h"
#include "session/load_bot.h"
#include "support/notes.h"

namespace fragsmith {

/// The file's bare name, 8-bit.
std::string NameAt(const OriginFile& file);

/// What a character file names in a field, at a level of its own.
struct NamedFile {
  int level = 0;  ///< 0 where that is not known.
  std::string text;
};

/// The names in the bot's character file, in the order of the file.
std::vector<NamedFile> NamesInCharacter(const OriginFiles& files,
                                        ParameterId field);

/// The file that the bot's character names where this one should stand; empty
/// where it is this one, or where the character says nothing of it.
std::string NamedInstead(const OriginFiles& files, BotFile kind);

/// Notes at which levels the game has another file in this one's place, or for
/// the bot as a whole, and which other bots of the folder or the description
/// have it too.
void NoteOthers(const OriginFiles& files, BotFile kind, const std::string& bot,
                const std::string& shown, Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_NAMED_FILES_H_
