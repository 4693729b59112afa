#include "session/presets.h"

#include "chat/chat_commands.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr double kAverageSkill = 0.5;
constexpr double kAverageWeight = 50;

double AverageSkill(int index) {
  switch (index) {
    case kViewMaxChangeIndex:
      return 180;
    case kReactionTimeIndex:
      return 2;
    default:
      return kAverageSkill;
  }
}

double AverageSingle(int index) {
  switch (index) {
    case kChatCpm.index():
      return 200;
    case kHealthWeight.index():
      return 1;
    case kArmorWeight.index():
      return 2;
    default:
      return kChatRange.Contains(index) ? kAverageSkill : kAverageWeight;
  }
}

/// A new bot with the values that the two functions give by catalogue index.
template <typename SkillValue, typename SingleValue>
Bot Fill(SkillValue skill_value, SingleValue single_value) {
  Bot bot;
  for (const Level level : kLevels) {
    for (const int index : kPerLevelRange) {
      bot.Put({level, index}, skill_value(index));
    }
  }
  for (int index = kChatRange.first; index <= kItemWeightRange.last; ++index) {
    bot.Put(ParameterId(index), single_value(index));
  }
  return bot;
}

}  // namespace

Bot CreateZeroBot() {
  const auto zero = [](int /*index*/) { return 0.0; };
  return Fill(zero, zero);
}

Bot CreateAverageBot(const RandomSource& random) {
  Bot bot = Fill(AverageSkill, AverageSingle);
  AddExtraChats(bot, random);
  return bot;
}

}  // namespace fragsmith
