#ifndef FRAGSMITH_SESSION_LOAD_LOSSES_H_
#define FRAGSMITH_SESSION_LOAD_LOSSES_H_

#include <string>

#include "botfiles/read_report.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"
#include "support/notes.h"

namespace fragsmith {

// What no single line shows: what a file lacks that a save writes, and names
// in it that a save replaces. File names for the notes are UTF-8.

/// Tells of levels, and of keys of a level, that a characteristic file lacks.
void NoteMissingLevels(const ReadReport& report, const std::string& file,
                       Notes& notes);

/// Tells of weights that a weight file lacks where it has others.
void NoteMissingWeights(const ReadReport& report, IndexRange range,
                        const std::string& file, Notes& notes);

/// The same for chat types.
void NoteMissingTypes(const ReadReport& report, const std::string& file,
                      Notes& notes);

/// Tells of files of the game that a save includes and the file does not.
void NoteMissingIncludes(const ReadReport& report, const std::string& file,
                         Notes& notes);

/// Tells of names in a file that are not those of the bot.
void NoteOtherNames(const ReadReport& report, const Bot& bot,
                    const std::string& file, Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_LOAD_LOSSES_H_
