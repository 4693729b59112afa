#ifndef FRAGSMITH_SESSION_SAVE_AGAIN_H_
#define FRAGSMITH_SESSION_SAVE_AGAIN_H_

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "botfiles/header_comment.h"
#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/save_bot.h"

namespace fragsmith {

/// Where a bot is saved again: each file to the path that it was last read
/// from or written to, those that the bot did not have yet beside them.
/// Nothing for a bot that has no files on disk.
std::optional<SavePlan> PlanOfSaveAgain(const Bot& bot, const BotHome& home);

/// True where the bot's files on disk are to be written beside themselves,
/// under another name.
bool HasNewName(const SavePlan& plan, const BotHome& home);

/// Where the bot has a name again under which it was read or written before,
/// its files are those.
void TakeUpEarlier(const Bot& bot, BotHome& home);

/// Files that the plan would write over and that are not as this bot's load or
/// save knows them. One that is gone does not count here.
std::vector<std::filesystem::path> ChangedByOthers(const SavePlan& plan,
                                                   const BotHome& home);

/// Files and the package of the bot that were there at its load or save, are
/// not there any more, and would be made anew by the plan. A list of bots is
/// never made.
std::vector<std::filesystem::path> GoneSince(const SavePlan& plan,
                                             const BotHome& home);

/// Lets the plan make what is missing of the way to its files.
void AddMissingFolders(SavePlan& plan);

/// What lies where the plan writes and was never read for this bot, nor written
/// by a save of it that failed. A file in
/// which the user has changed nothing since the load is left alone by the plan
/// from now on; the others are given.
std::map<BotFile, std::filesystem::path> TakeOutUnread(SavePlan& plan,
                                                       const Bot& bot,
                                                       const BotHome& home,
                                                       const Author& author);

/// Files and the package that lie where the plan writes, that no load of this
/// bot read and no save of it made, and that are not what it writes anyway:
/// another bot of the name, or what somebody made by hand.
std::vector<std::filesystem::path> NeverRead(const SavePlan& plan,
                                             const Bot& bot,
                                             const BotHome& home,
                                             const Author& author);

/// How many files a package has that are not the bot's, and that it would lose
/// if it were made anew; 0 where it cannot be read or is not there.
std::size_t OtherFilesIn(const std::filesystem::path& package, const Bot& bot);

/// The sentence about those files; UTF-8.
std::string WhatGoes(std::size_t other_files);

/// True for a package that is called by the bot's name and has none but the
/// bot's files in it.
bool IsPackageOf(const std::filesystem::path& package, const Bot& bot);

/// A package of the bot's name that lies where the game takes it before the
/// files of the plan.
struct PackageBeside {
  std::filesystem::path path;
  std::size_t other_files = 0;  ///< In it, that are not the bot's.
};

/// Nothing where the plan makes one, or there is none.
std::optional<PackageBeside> FindPackageBeside(const SavePlan& plan,
                                               const Bot& bot);

/// Where the plan's bot lies: the folder of the game's layout, or that of the
/// files.
std::filesystem::path FolderOf(const SavePlan& plan);

/// Holds fast what was written. Of a set that is written in part only, the
/// files that are the bot's already: the others are no home.
/// Files of another name that the bot had until now are kept in mind.
void Remember(const SavedBot& saved, const SavePlan& plan, BotHome& home);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_SAVE_AGAIN_H_
