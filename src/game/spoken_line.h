#ifndef FRAGSMITH_GAME_SPOKEN_LINE_H_
#define FRAGSMITH_GAME_SPOKEN_LINE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "game/chat_message.h"
#include "game/chat_type_facts.h"
#include "game/word_lists.h"
#include "support/random.h"

namespace fragsmith {

/// What stands for the variables in a sample. Game text.
struct SampleNames {
  std::string own_name = "rookie";
  std::string opponent = "marla";
  std::string other_opponent = "otto";
  std::string map = "q3dm1";
  std::string weapon = "Rocket Launcher";
  std::string other_weapon = "Railgun";

  std::string_view Of(ChatFill fill) const;
};

/// One way in which the game may speak a chat line.
struct SpokenLine {
  /// As on screen, game text; colour codes are left in it.
  std::string text;
  /// Bytes of the line in the game's memory; at most limits::kMaxEncodedBytes.
  std::size_t encoded_length = 0;
  /// Bytes of this sample before it is cut; at most limits::kMaxSpokenBytes.
  std::size_t spoken_length = 0;
  /// Bytes with the longest words and names that there are.
  std::size_t longest_length = 0;
  /// The line breaks the chat file, so that nothing is ever spoken.
  bool is_broken = false;
  /// Lists that the game does not have, by their names.
  std::vector<std::string> unknown_lists;
};

/// Speaks a line in editor form. Words are drawn from the lists.
SpokenLine SpeakLine(ChatTypeId type, std::string_view line,
                     const SampleNames& names, const WordLists& lists,
                     const RandomSource& random);

/// The most bytes that the message may be spoken with.
std::size_t LongestSpoken(ChatTypeId type, const ChatMessage& message,
                          const WordLists& lists);

/// What is left of a text on its way to the screen: some signs are dropped,
/// others become dots or blanks, and the rest is cut. Colour codes stay.
std::string AsOnScreen(std::string_view text);

/// A player's name as bots use it when they speak: "^1Mr. X-Ray" is "xray".
std::string SimpleName(std::string_view name);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_SPOKEN_LINE_H_
