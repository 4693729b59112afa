#ifndef FRAGSMITH_BOTFILES_CHARACTERISTIC_FILE_H_
#define FRAGSMITH_BOTFILES_CHARACTERISTIC_FILE_H_

#include <string>
#include <string_view>

#include "botfiles/header_comment.h"
#include "botfiles/read_report.h"
#include "model/bot.h"

namespace fragsmith {

/// The characteristic file of the bot: one block for each of the levels 1, 4
/// and 5, with the bot's single chat values repeated in each.
std::string WriteCharacteristicFile(const Bot& bot, const Author& author);

/// Whether reading takes the name and gender too (and then clears comment and
/// version, which no file gives back).
enum class ReadIdentity { kNo, kYes };

/// Fills the bot from the bytes of a characteristic file. Keys and "skill"
/// are matched with their case, anywhere in a line; the last block's chat
/// values win. Values of levels that a bot does not have are passed over.
/// File names in the file are not used: they follow from the bot's name.
ReadReport ReadCharacteristicFile(std::string_view bytes,
                                  const std::string& file_name,
                                  ReadIdentity identity, Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_CHARACTERISTIC_FILE_H_
