#include "editor/current_bot.h"

#include <utility>

namespace fragsmith {

void CurrentBot::SetChanged(bool is_changed) {
  if (is_changed_ == is_changed) return;
  is_changed_ = is_changed;
  emit ChangedFlagSet(is_changed);
}

bool CurrentBot::SetParameter(int index, const Value& value) {
  if (!bot_.SetParameter(index, value)) return false;
  emit ParameterEdited(index);
  SetChanged(true);
  return true;
}

void CurrentBot::EditChats(const std::function<void(Bot&)>& edit) {
  edit(bot_);
  emit ChatsEdited();
  SetChanged(true);
}

void CurrentBot::Replace(Bot bot, bool is_changed) {
  bot_ = std::move(bot);
  emit Replaced();
  SetChanged(is_changed);
}

}  // namespace fragsmith
