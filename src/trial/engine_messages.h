#ifndef FRAGSMITH_TRIAL_ENGINE_MESSAGES_H_
#define FRAGSMITH_TRIAL_ENGINE_MESSAGES_H_

#include <string_view>

#include "checks/finding.h"

namespace fragsmith {

// What an engine prints, and what it means in plain words: sentences that
// Localized() puts into the user's language.

/// A message of the engine by a part of it, and what it means.
struct Explanation {
  std::string_view words;
  std::string_view sentence;
};

/// Messages that come without a word of how bad they are.
struct BareMessage {
  Explanation explanation;
  Severity severity = Severity::kError;
  bool is_refusal = false;
};

/// The message of this kind that the line holds, or null.
const BareMessage* FindBareMessage(std::string_view line);

/// For a line after which no game is played; empty for any other.
std::string_view DeadEndSentence(std::string_view line);

/// For an error or a warning; empty for one that says enough by itself.
std::string_view SentenceFor(std::string_view line);

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_ENGINE_MESSAGES_H_
