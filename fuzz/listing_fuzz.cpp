#include <string>

#include "fuzz/oracle.h"
#include "install/program/base_scan.h"
#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

/// The lists as the files that hold what the listing gave.
struct Written {
  std::string models;
  std::string bots;
};

Written Scan(std::string_view listing, BaseLists& lists) {
  lists.bots.ResetBotList();
  lists.models.PurgeScannedModels();
  ScriptedPrompts prompts;
  Notes notes;
  ParsePackageListing(listing, "some.pk3", lists, prompts, notes);
  ExpectShowable(notes);
  for (const std::string& box : prompts.log) ExpectShowable(box);
  Expect(prompts.messages.size() <= 10, "few boxes for one package");
  lists.bots.SortBotList();
  lists.models.SortCatalogue();
  return {FormatModelList(lists.models), FormatBotList(lists.bots)};
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  BaseLists lists = {ModelCatalogue::Standard(), BotList::Standard()};
  const Written first = Scan(bytes, lists);
  const ParsedModelList skins = ParseModelList(first.models);
  Expect(skins.has_error == first.models.empty(), "the skins can be stored");
  Expect(skins.skins.size() == lists.models.CountSkins() -
                                   ModelCatalogue::Standard().CountSkins(),
         "all skins are stored");
  for (const UserSkin& skin : skins.skins) {
    ExpectEqual("some.pk3", skin.PK3File, "the skin's package");
    Expect(skin.IconFile.find('/') == std::string::npos, "backslashes alone");
  }
  const ParsedBotList bots = ParseBotList(first.bots);
  Expect(bots.has_error == first.bots.empty(), "the bots can be stored");

  const Written second = Scan(bytes, lists);
  ExpectEqual(first.models, second.models,
              "a second scan finds the same skins");
  ExpectEqual(first.bots, second.bots, "a second scan finds the same bots");
}

}  // namespace fragsmith
