#ifndef FRAGSMITH_INPLACE_ORIGIN_FILES_H_
#define FRAGSMITH_INPLACE_ORIGIN_FILES_H_

#include <array>
#include <string>

#include "game/preprocessor.h"
#include "model/file_names.h"
#include "session/bot_origin.h"
#include "support/result.h"

namespace fragsmith {

/// A bot's own files first: the description may be in a list with others.
inline constexpr std::array kOwnFilesFirst = {
    BotFile::kCharacteristics, BotFile::kWeaponWeights, BotFile::kItemWeights,
    BotFile::kChat, BotFile::kDescription};

/// The bytes of a file of a bot as they are now.
Result<std::string> BytesAt(const OriginFile& file);

/// How messages call such a file; UTF-8.
std::string ShownAt(const OriginFile& file);

/// What the bot's files are called by, in front of "_c.c"; empty where they
/// have other names.
std::string CalledBy(const OriginFiles& files);

/// Another file of the bot that a link makes one with this; UTF-8, empty
/// without one.
std::string OneWith(const OriginFiles& files, BotFile kind);

/// What a bot's files include: from the package or the folder in which the
/// file lies, else from the game.
IncludeLookup LookUpBeside(const OriginFile& file, IncludeLookup game);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_ORIGIN_FILES_H_
