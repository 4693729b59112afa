#include "trial/engine_messages.h"

#include <algorithm>
#include <array>

#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::array kBareMessages = {
    BareMessage{
        {"BotAISetupClient failed",
         Localizable("The game does not add the bot, for the reasons above.")},
        Severity::kError,
        true},
    BareMessage{{"Unable to add bot",
                 Localizable("The game has no free place for another player.")},
                Severity::kError,
                true},
    BareMessage{
        {"Can't use keys or values with",
         Localizable(
             "A value in the description file has a ; or \\ or \" in it. "
             "The game throws that line away.")},
        Severity::kWarning,
        false},
    BareMessage{
        {"Missing { in info file",
         Localizable(
             "The description file has something in front of its {. The "
             "game ignores the file from there on.")},
        Severity::kWarning,
        false},
    BareMessage{
        {"Unexpected end of info file",
         Localizable(
             "The description file lacks the } at its end. The game takes "
             "it all the same.")},
        Severity::kWarning,
        false},
    BareMessage{
        {"file too large",
         Localizable("The description file is too large for the game, which "
                     "ignores it. Make it shorter.")},
        Severity::kWarning,
        false},
    BareMessage{
        {"Max infos exceeded",
         Localizable(
             "The game knows as many bots as it can. The others are left "
             "out.")},
        Severity::kWarning,
        false},
    BareMessage{
        {"Info string length exceeded",
         Localizable(
             "The description is too long. What does not fit is lost.")},
        Severity::kWarning,
        false},
};

/// Beginnings of lines after which no game is played.
constexpr std::array kDeadEnds = {
    Explanation{
        "Can't find map ",
        Localizable("The game has no map of this name. Choose another one.")},
    Explanation{
        "VM_Create on game failed",
        Localizable(
            "The game's module is missing. The data folder holds the game "
            "folder together with that; with Debian's OpenArena it is "
            "/usr/lib/openarena-server.")},
    Explanation{
        "\"pak0.pk3\" is missing",
        Localizable(
            "The engine finds no game there. Enter the data folder, the "
            "one above the game folder (with Debian's OpenArena "
            "/usr/lib/openarena-server), and the game folder, such as "
            "baseoa.")},
};

/// The first whose words are in the message counts.
constexpr std::array kExplanations = {
    Explanation{
        "no aifile specified",
        Localizable(
            "The description file does not say where the bot's character "
            "is. The game does not add the bot.")},
    Explanation{
        "AAS not initialized",
        Localizable(
            "The map has no file by which bots find their way (.aas), so "
            "no bot can play there. Choose another map.")},
    Explanation{
        "couldn't find skill",
        Localizable(
            "The character file has no block for this skill, or a mistake "
            "in it. The bot gets the game's default character.")},
    Explanation{
        "couldn't load skill",
        Localizable(
            "The game found no character for this skill and does not add "
            "the bot.")},
    Explanation{
        "couldn't find chat",
        Localizable("The chat file has no chat of the name that the character "
                    "file asks for.")},
    Explanation{
        "couldn't load chat",
        Localizable(
            "The game could not read the bot's chat and does not add the "
            "bot.")},
    Explanation{
        "couldn't load weapon config",
        Localizable(
            "The game could not read the weapon weights and does not add "
            "the bot.")},
    Explanation{
        "couldn't load the weights",
        Localizable("The game could not read the weights and does not add the "
                    "bot.")},
    Explanation{
        "couldn't load weights",
        Localizable("The game could not read the weights and does not add the "
                    "bot.")},
    Explanation{"couldn't load",
                Localizable("The game does not find this file.")},
    Explanation{"counldn't load",
                Localizable("The game does not find this file.")},
    Explanation{
        "expected integer index",
        Localizable(
            "The game does not know this characteristic. The bot gets the "
            "game's default character.")},
    Explanation{
        "expected integer, float or string",
        Localizable(
            "This value is neither a plain number nor a text in quotes. "
            "The bot gets the game's default character.")},
    Explanation{
        "already initialized",
        Localizable(
            "The same characteristic stands twice at one skill. The bot "
            "gets the game's default character.")},
    Explanation{
        "is not initialized",
        Localizable(
            "The game has no value for this characteristic at this skill "
            "and takes 0. Write it with a \".\" at all levels, or at "
            "none.")},
    Explanation{
        "is not a string",
        Localizable("Here the game wants a text in quotes, not a number.")},
    Explanation{
        "unknown definition",
        Localizable("The game does not know this word. It ignores the file.")},
    Explanation{
        "newline inside string",
        Localizable(
            "A text does not end on the line on which it begins: a quote "
            "is missing.")},
    Explanation{
        "missing trailing quote",
        Localizable("A text has no quote at its end. The game cannot read the "
                    "file.")},
    Explanation{
        "unknown escape char",
        Localizable(
            "A backslash stands where the game knows none. The text ends "
            "there.")},
    Explanation{"can't read token",
                Localizable("The game cannot make sense of the file "
                            "from here on.")},
    Explanation{
        "couldn't read expected token",
        Localizable("The file ends too early, or an error above spoiled it.")},
    Explanation{
        "invalid return value",
        Localizable(
            "A weight is missing or is not a plain number. The game does "
            "not add the bot.")},
    Explanation{
        "can't evaluate",
        Localizable(
            "A weight is missing or is not a plain number. The game does "
            "not add the bot.")},
    Explanation{
        "expected ;",
        Localizable(
            "A weight is missing or is not a plain number. The game does "
            "not add the bot.")},
    Explanation{
        "invalid name",
        Localizable(
            "A weight is missing or is not a plain number. The game does "
            "not add the bot.")},
    Explanation{"negative value set to zero",
                Localizable("The game ignores the sign of a weight.")},
    Explanation{
        "redefinition of",
        Localizable("A weight stands twice in the file. The last one counts.")},
    Explanation{
        "weapon number out of range",
        Localizable(
            "None of the weapons that the bot carries has a weight above "
            "0. It aims badly.")},
    Explanation{
        "expected type",
        Localizable(
            "The chat file is not as the game wants it. The game does not "
            "add the bot.")},
    Explanation{
        "expected ,",
        Localizable(
            "Something is wrong in a chat line. The game does not add the "
            "bot.")},
    Explanation{
        "unknown message component",
        Localizable(
            "Something is wrong in a chat line. The game does not add the "
            "bot.")},
    Explanation{
        "chat message too long",
        Localizable("A chat line is too long. The game does not add the bot.")},
    Explanation{
        "unknown random string",
        Localizable(
            "A chat line takes words from a list that this game does not "
            "have. The line is garbled when it is spoken.")},
    Explanation{
        "too many expansions",
        Localizable("A chat line leads from one word list to the next without "
                    "end.")},
    Explanation{
        "out of range",
        Localizable("A chat line has a variable that the game does not know.")},
    Explanation{
        " not found",
        Localizable(
            "A file asks for another one that this game does not have.")},
};

}  // namespace

const BareMessage* FindBareMessage(std::string_view line) {
  const auto* const found =
      std::find_if(kBareMessages.begin(), kBareMessages.end(),
                   [line](const BareMessage& message) {
                     return Contains(line, message.explanation.words);
                   });
  return found == kBareMessages.end() ? nullptr : found;
}

std::string_view DeadEndSentence(std::string_view line) {
  const auto* const found = std::find_if(
      kDeadEnds.begin(), kDeadEnds.end(),
      [line](const Explanation& one) { return line.starts_with(one.words); });
  return found == kDeadEnds.end() ? std::string_view() : found->sentence;
}

std::string_view SentenceFor(std::string_view line) {
  const auto* const found = std::find_if(
      kExplanations.begin(), kExplanations.end(),
      [line](const Explanation& one) { return Contains(line, one.words); });
  return found == kExplanations.end() ? std::string_view() : found->sentence;
}

}  // namespace fragsmith
