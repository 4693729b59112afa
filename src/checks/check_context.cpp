#include "checks/check_context.h"

#include "chat/vocabulary.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

const WordLists& WordsOf(const CheckContext& context) {
  const bool has_game = context.game != nullptr && !context.game->words.empty();
  return has_game ? context.game->words : WordLists::Sample();
}

void FindingList::Begin(const Check& check) {
  check_ = &check;
  of_this_check_ = 0;
}

void FindingList::Add(BotPlace place, std::string text, std::vector<Mend> mends,
                      std::optional<Severity> severity) {
  if (++of_this_check_ > kMaxOfOneCheck) return;
  findings_.push_back({.id = check_->id,
                       .severity = severity.value_or(check_->severity),
                       .place = std::move(place),
                       .text = std::move(text),
                       .mends = std::move(mends)});
}

std::string Without(std::string text, std::string_view letters) {
  std::erase_if(text, [letters](char letter) {
    return Contains(letters, {&letter, 1});
  });
  return text;
}

Mend SetTo(ParameterId parameter, Value value, std::string title) {
  return {.title = std::move(title),
          .apply = [parameter, value = std::move(value)](Bot& bot) {
            bot.Put(parameter, value);
          }};
}

Mend SetTo(ParameterId parameter, double value) {
  return SetTo(
      parameter, value,
      Localized("Set %1 to %2", {QuotedName(parameter), ShownNumber(value)}));
}

Mend SetLine(const CheckedLine& line, std::string text, std::string title) {
  return {
      .title = std::move(title),
      .apply = [type = line.type, index = line.line, text = std::move(text)](
                   Bot& bot) { bot.SetChatLine(type, index, text); }};
}

}  // namespace fragsmith
