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
    case kChatCpmIndex:
      return 200;
    case kHealthIndex:
      return 1;
    case kArmorIndex:
      return 2;
    default:
      return kChatRange.Contains(index) ? kAverageSkill : kAverageWeight;
  }
}

/// A new bot with the values that the two functions give by catalogue index.
template <typename SkillValue, typename SingleValue>
Bot Fill(SkillValue skill_value, SingleValue single_value) {
  Bot bot;
  const auto set = [&bot](int index, double value) {
    (void)bot.SetParameter(index, value);
  };
  for (const int level : kSkillLevels) {
    for (int index = kPerLevelRange.first; index <= kPerLevelRange.last;
         ++index) {
      set(LevelIndex(level, index), skill_value(index));
    }
  }
  for (int index = kChatRange.first; index <= kItemWeightRange.last; ++index) {
    set(index, single_value(index));
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
