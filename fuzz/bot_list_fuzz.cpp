#include <string>
#include <vector>

#include "fuzz/oracle.h"
#include "install/program/bot_list_file.h"
#include "support/text.h"

namespace fragsmith {
namespace {

BotList ListOf(const std::vector<BotListEntry>& bots) {
  BotList list = BotList::Standard();
  for (const BotListEntry& bot : bots) {
    list.AddBot(bot.Name, bot.PK3File, bot.HasBotScript);
  }
  return list;
}

std::vector<BotListEntry> UserBotsOf(const BotList& list) {
  std::vector<BotListEntry> bots;
  for (BotListEntry bot : list.entries()) {
    if (bot.IsStandard) continue;
    // The file has no way to hold a double quote.
    std::erase(bot.Name, '"');
    std::erase(bot.PK3File, '"');
    bots.push_back(std::move(bot));
  }
  return bots;
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  const std::vector<BotListEntry> parsed = ParseBotList(bytes).bots;
  BotList list = ListOf(parsed);
  for (const BotListEntry& bot : parsed) {
    const auto place = list.Find(bot.Name);
    Expect(place && EqualIgnoringCase(list.entries().at(*place).Name, bot.Name),
           "each bot is found");
  }
  list.SortBotList();
  const std::string written = FormatBotList(list);
  const ParsedBotList again = ParseBotList(written);
  Expect(again.has_error == written.empty(), "our own file has no error");
  Expect(again.bots == UserBotsOf(list), "all bots are kept");
  for (const BotListEntry& bot : list.entries()) {
    Expect(BotListLine(bot).size() == 35 + BotStatus(bot).size(),
           "the columns are fixed");
  }
  if (Contains(bytes, "\"")) return;
  BotList rebuilt = ListOf(again.bots);
  rebuilt.SortBotList();
  ExpectEqual(written, FormatBotList(rebuilt), "the file is stable");
}

}  // namespace fragsmith
