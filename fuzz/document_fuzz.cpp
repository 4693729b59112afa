#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "fuzz/kept_values.h"
#include "fuzz/oracle.h"
#include "session/bot_document.h"
#include "session/load_bot.h"
#include "support/text.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

constexpr IndexRange kParameters = {kPerLevelRange.first,
                                    kItemWeightRange.last};
constexpr std::array kWrittenFields = {kNameField,    kGenderField,
                                       kFunNameField, kRailColorField,
                                       kModelField,   kSkinField};
constexpr std::array<std::string_view, 8> kSyntax = {
    "\"",        "funname", "color",           "model",
    "arenalord", "type",    "characteristic_", "#define "};

/// The bot of a document that passes all checks.
std::optional<Bot> BotOf(std::string_view json) {
  Notes notes;
  Result<BotDocument> document = ReadBotDocument(json, "file", notes);
  ExpectShowable(notes);
  if (!document) {
    ExpectShowable(Describe(document.error()));
    return std::nullopt;
  }
  ScriptedPrompts prompts;
  if (CheckAllIn(document->texts, document->bot, prompts)) return std::nullopt;
  return document->bot;
}

/// True for texts with syntax of the files in them, which say something else
/// there.
bool IsAmbiguous(const Bot& bot) {
  const auto is_ambiguous = [&bot](ParameterId field) {
    const std::string text = ToLower(bot.Text(field));
    return text.ends_with(';') || std::any_of(kSyntax.begin(), kSyntax.end(),
                                              [&](std::string_view part) {
                                                return Contains(text, part);
                                              });
  };
  return std::any_of(kWrittenFields.begin(), kWrittenFields.end(),
                     is_ambiguous) ||
         HasTextWith(bot, kParameters, "CHARACTERISTIC_") ||
         HasTextWith(bot, kParameters, "#define ");
}

/// The bot as its five files give it back.
Bot ThroughFiles(const Bot& bot) {
  LoadedBot loaded;
  const auto read = [&](BotFile file, const std::string& bytes) {
    ReadBotFile(file, WholeBot{}, bytes, bot.Name(), "file", loaded);
  };
  read(BotFile::kCharacteristics, WriteCharacteristicFile(bot, {}));
  read(BotFile::kItemWeights, WriteItemWeightFile(bot, {}));
  read(BotFile::kWeaponWeights, WriteWeaponWeightFile(bot, {}));
  read(BotFile::kChat, WriteChatFile(bot, {}));
  read(BotFile::kDescription, WriteDescriptionFile(bot, {}));
  ExpectShowable(loaded.notes);
  return loaded.bot;
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  const std::optional<Bot> bot = BotOf(bytes);
  if (!bot) return;
  const std::string written = WriteBotDocument(*bot);
  const std::optional<Bot> again = BotOf(written);
  Expect(again.has_value(), "our own document is a good one");
  ExpectEqual(written, WriteBotDocument(*again), "the document is stable");

  if (IsAmbiguous(*bot)) return;
  const Bot loaded = ThroughFiles(*bot);
  const std::optional<Bot> made = BotOf(WriteBotDocument(loaded));
  if (!made) return;
  ExpectEqual(WriteBotDocument(loaded), WriteBotDocument(ThroughFiles(*made)),
              "a loaded bot is made and loaded again");
}

}  // namespace fragsmith
