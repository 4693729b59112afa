// What BotReader tells of a character that asks for a chat that is not there.

#include <string>
#include <utility>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "game/game_path.h"
#include "model/file_names.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

/// Where the character's line is at fault and not the chat file, it is told
/// there: a file or a name that was left as it was in another bot.
Complaint BotReader::WithoutChat(const CharacterValue& path,
                                 const CharacterValue& name,
                                 const GameChat& chat,
                                 const Complaint& told) const {
  if (path.text.empty()) return EmptyPath(BotFile::kChat, path);
  Complaint moved = told;
  const std::string own = OwnName();
  if (NamesAnother(path)) {
    moved.place = {.file = CharacterName(), .line = path.line};
    moved.text = Localized(
        files_.chat
            ? Localizable("This line names the chat file of another bot, %1, "
                          "which has no chat named %2. Write %3.")
            : Localizable(
                  "This line names the chat file of another bot, %1, which has "
                  "no chat named %2. Write the name of this bot's own file."),
        {Quoted(path.text), Quoted(name.text),
         files_.chat ? Quoted(files_.chat->game_path) : ""});
  } else if (name.is_own && !own.empty() &&
             EqualIgnoringCase(chat.other_name, own)) {
    moved.place = {.file = CharacterName(), .line = name.line};
    moved.text = Localized(
        "This line asks for a chat named %1, but the one in %2 is named %3. "
        "Write that name here.",
        {Quoted(name.text), Quoted(path.text), Quoted(chat.other_name)});
  }
  return moved;
}

/// Of a line with nothing between its quotation marks.
Complaint BotReader::EmptyPath(BotFile kind, const CharacterValue& path) const {
  const std::string own = OwnName();
  std::string text = Localized(
      own.empty()
          ? Localizable("There is no path between the quotation marks in this "
                        "line, and the game takes that for an empty file. "
                        "Write the path of the bot's own file.")
          : Localizable("There is no path between the quotation marks in this "
                        "line, and the game takes that for an empty file. "
                        "Write the path of the bot's own file, %1."),
      {Quoted(InBots(own) + std::string(FileSuffix(kind)))});
  return {.id = "path-empty",
          .severity = Severity::kError,
          .place = {.file = CharacterName(), .line = path.line},
          .text = std::move(text)};
}

}  // namespace fragsmith
