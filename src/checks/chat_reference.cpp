// What BotReader tells of a character that asks for a chat that is not there.

#include <string>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "game/game_path.h"
#include "model/file_names.h"
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
    moved.text = "This line names the chat file of another bot, " +
                 Quoted(path.text) + ", which has no chat named " +
                 Quoted(name.text) + ". ";
    moved.text += files_.chat ? "Write " + Quoted(files_.chat->game_path) + "."
                              : "Write the name of this bot's own file.";
  } else if (name.is_own && !own.empty() &&
             EqualIgnoringCase(chat.other_name, own)) {
    moved.place = {.file = CharacterName(), .line = name.line};
    moved.text = "This line asks for a chat named " + Quoted(name.text) +
                 ", but the one in " + Quoted(path.text) + " is named " +
                 Quoted(chat.other_name) + ". Write that name here.";
  }
  return moved;
}

/// Of a line with nothing between its quotation marks.
Complaint BotReader::EmptyPath(BotFile kind, const CharacterValue& path) const {
  const std::string own = OwnName();
  std::string text =
      "There is no path between the quotation marks in this line, and the game "
      "takes that for an empty file. Write the path of the bot's own file";
  if (!own.empty()) {
    text += ", " + Quoted(InBots(own) + std::string(FileSuffix(kind)));
  }
  return {.id = "path-empty",
          .severity = Severity::kError,
          .place = {.file = CharacterName(), .line = path.line},
          .text = text + "."};
}

}  // namespace fragsmith
