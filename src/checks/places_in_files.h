#ifndef FRAGSMITH_CHECKS_PLACES_IN_FILES_H_
#define FRAGSMITH_CHECKS_PLACES_IN_FILES_H_

#include <map>

#include "checks/file_checks.h"
#include "inplace/file_reading.h"
#include "model/bot.h"
#include "model/bot_place.h"

namespace fragsmith {

/// Where the values and chat lines of a bot stand in the files from which it
/// was read.
class PlacesInFiles {
 public:
  /// The files must outlive this.
  PlacesInFiles(const BotFileSet& files, IncludeLookup game);

  /// The file by its name on disk, and the line where there is one; by the name
  /// that a save would give it where it is not there.
  FilePlace Of(const Bot& bot, const BotPlace& place);

 private:
  const FileReading& Read(BotFile kind, const GameFile& file);
  TextSpan SpanOf(const Bot& bot, const BotPlace& place,
                  const FileReading& reading) const;

  const BotFileSet& files_;
  IncludeLookup game_;
  std::map<BotFile, FileReading> readings_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_PLACES_IN_FILES_H_
