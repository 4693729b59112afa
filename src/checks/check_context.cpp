#include "checks/check_context.h"

namespace fragsmith {

void FindingList::Begin(const Check& check) {
  check_ = &check;
  of_this_check_ = 0;
}

void FindingList::Add(FindingPlace place, std::string text,
                      std::vector<Mend> mends) {
  if (++of_this_check_ > kMostOfOneCheck) return;
  findings_.push_back({.id = check_->id,
                       .severity = check_->severity,
                       .place = std::move(place),
                       .text = std::move(text),
                       .mends = std::move(mends)});
}

Mend SetTo(int parameter, Value value, std::string title) {
  return {.title = std::move(title),
          .apply = [parameter, value = std::move(value)](Bot& bot) {
            (void)bot.SetParameter(parameter, value);
          }};
}

Mend SetLine(const CheckedLine& line, std::string text, std::string title) {
  return {
      .title = std::move(title),
      .apply = [type = line.type, number = line.line, text = std::move(text)](
                   Bot& bot) { bot.SetChatLine(type, number, text); }};
}

}  // namespace fragsmith
