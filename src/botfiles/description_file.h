#ifndef FRAGSMITH_BOTFILES_DESCRIPTION_FILE_H_
#define FRAGSMITH_BOTFILES_DESCRIPTION_FILE_H_

#include <string>
#include <string_view>

#include "botfiles/header_comment.h"
#include "botfiles/read_report.h"
#include "model/bot.h"

namespace fragsmith {

/// The description file that tells the game of the bot and its looks.
std::string WriteDescriptionFile(const Bot& bot, const Author& author);

/// The spelling of a model or skin in that file: as it is when a character
/// after the first is one of A to Z, else in lower case.
std::string ModelFileName(std::string_view name);

struct DescriptionReport : ReadReport {
  /// The file has an arena lord, though it may be 0.
  bool has_arena_lord = false;
  /// The lines that describe this bot; empty where none do.
  TextSpan block;
};

/// Fills fun name, rail colour, model, skin and arena lord from the bytes of
/// a description file. Fun name and rail colour are reset before. A line
/// feeds each field whose key it holds anywhere, whatever its case, so one
/// line may feed several. Of a file with several bots only the one counts
/// that has the bot's name or its characteristic file; `called` is what the
/// bot's files are called by, where that is not its name.
DescriptionReport ReadDescriptionFile(std::string_view bytes,
                                      const std::string& file_name, Bot& bot,
                                      std::string_view called = {});

/// Fun name empty and rail colour "None": how reading a description begins,
/// also where there is no file.
void ResetDescription(Bot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_DESCRIPTION_FILE_H_
