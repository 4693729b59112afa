// Saves everything that the program saves, again and again, for kill_test.py
// and full_disk_test.py:  test_trust_saver FOLDER FIRST LAST SIZE
//
// Each round writes a bot's set in the game's layout with its package into
// FOLDER/game and the lists and settings into FOLDER/program, and prints its
// number when it is done. What a round writes depends on its number and the
// size alone, but for the times in the package, and no file is the same in two
// rounds.

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "install/program/settings_file.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "session/synonym_file.h"

namespace fragsmith {
namespace {

/// What goes wrong is told on standard error.
class ErrorPrompts : public Prompts {
 public:
  void Show(const Message& message) override {
    if (!message.text.ends_with("succesfully")) {
      std::cerr << message.text << '\n';
    }
  }
  bool Confirm(const std::string& /*title*/,
               const std::string& /*text*/) override {
    return false;
  }
  std::size_t Choose(const std::string& /*title*/, const std::string& /*text*/,
                     const std::vector<std::string>& /*buttons*/) override {
    return 0;
  }
  std::optional<std::string> AskText(const std::string& /*title*/,
                                     const std::string& /*prompt*/) override {
    return std::nullopt;
  }
};

Bot MakeBot(int round, int size) {
  Bot bot = CreateAverageBot(SeededRandom(static_cast<std::uint32_t>(round)));
  bot.Put(kNameField, std::string("Rookie"));
  bot.Put(kFunNameField, "Round" + std::to_string(round));
  for (int line = 0; line < size; ++line) {
    constexpr int kTypes = static_cast<int>(kChatTypeCount);
    const ChatTypeId type = *ChatTypeOfIndex(line % kTypes);
    bot.SetChatLine(type, bot.EndOfChatLines(type),
                    "line " + std::to_string(line * (round + 1)));
  }
  return bot;
}

bool Tell(const Result<void>& done) {
  if (!done) std::cerr << Describe(done.error()) << '\n';
  return done.has_value();
}

bool SaveAll(const std::filesystem::path& folder, int round, int size) {
  const std::string mark = std::to_string(round);
  ErrorPrompts prompts;
  const SavedBot saved =
      SaveBot(MakeBot(round, size), folder / "game", {true, true},
              {.name = "Round " + mark, .email = {}, .web_page = {}}, prompts);
  if (saved.error) {
    return Tell(Failure(*saved.error));
  }
  BotList bots = BotList::Standard();
  ModelCatalogue models = ModelCatalogue::Standard();
  SynonymList synonyms = {{mark}};
  for (int item = 0; item < size; ++item) {
    const std::string name = "round" + mark + "item" + std::to_string(item);
    bots.AddBot(name, "a.pk3", item % 2 == 0);
    models.AddModelSkin(name, "default", "a.pk3", "models\\" + name);
    synonyms.words.push_back(name);
  }
  const std::filesystem::path program = folder / "program";
  ProgramSettings settings;
  settings.UserName = mark;
  settings.Bots = round;
  return Tell(SaveUserBots(program, bots)) &&
         Tell(SaveUserModels(program, models)) &&
         Tell(SaveSynonyms(program, synonyms)) &&
         Tell(SaveSettings(program, settings));
}

}  // namespace
}  // namespace fragsmith

int main(int count, char** arguments) {
  if (count != 5) {
    std::cerr << "usage: test_trust_saver FOLDER FIRST LAST SIZE\n";
    return 2;
  }
  const std::filesystem::path folder = arguments[1];
  const int last = std::atoi(arguments[3]);
  const int size = std::atoi(arguments[4]);
  std::cout << "ready" << std::endl;
  for (int round = std::atoi(arguments[2]); round <= last; ++round) {
    if (!fragsmith::SaveAll(folder, round, size)) return 1;
    std::cout << round << std::endl;
  }
  return 0;
}
