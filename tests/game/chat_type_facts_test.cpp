#include "game/chat_type_facts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

/// Hits are spoken of with half their characteristic, random lines with a
/// fortieth of it each second, all else with the whole.
TEST(ChatTypeFacts, GiveEachTypeTheChanceOfItsCharacteristic) {
  constexpr int kHitTalking = 39;
  constexpr int kHitNoKill = 41;
  constexpr int kRandom = 42;
  std::set<ChatTypeId> types;
  for (const int index : kChatRange) {
    double factor = index == kRandom ? 0.025 : 1;
    if (index >= kHitTalking && index <= kHitNoKill) factor = 0.5;
    for (const ChatTypeId type : TypesOfChance(ParameterId(index))) {
      SCOPED_TRACE(IndexOf(type));
      EXPECT_TRUE(types.insert(type).second);
      EXPECT_EQ(FactsOfChatType(type).chance, ParameterId(index));
      EXPECT_EQ(FactsOfChatType(type).chance_factor, factor);
    }
  }
  for (const ChatTypeId type : kAllChatTypes) {
    if (types.contains(type)) continue;
    EXPECT_EQ(FactsOfChatType(type).chance, std::nullopt);
    EXPECT_FALSE(FactsOfChatType(type).is_heard);
  }
  EXPECT_EQ(types.size(), kChatTypeCount - 1);
}

}  // namespace
}  // namespace fragsmith
