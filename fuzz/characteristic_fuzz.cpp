#include <string>

#include "botfiles/characteristic_file.h"
#include "fuzz/kept_values.h"
#include "fuzz/oracle.h"
#include "session/identity_rules.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr IndexRange kIdentity = {kNameField.index(), kGenderField.index()};
constexpr IndexRange kParameters = {kPerLevelRange.first, kChatRange.last};

ReadReport Read(std::string_view bytes, Bot& bot) {
  return ReadCharacteristicFile(bytes, "file", ReadIdentity::kYes, bot);
}

bool HasTextWith(const Bot& bot, std::string_view part) {
  return HasTextWith(bot, kIdentity, part) ||
         HasTextWith(bot, kParameters, part);
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  Bot first;
  ExpectShowable(Read(bytes, first).notes);
  Bot other;
  ReadCharacteristicFile(bytes, "file", ReadIdentity::kNo, other);
  ExpectEqual("Bot", other.Name(), "the name is not asked for");
  Expect(first.Parameter(ParameterId(Level::k4, kAttackSkillIndex)) ==
             other.Parameter(ParameterId(Level::k4, kAttackSkillIndex)),
         "values do not hang on the identity");

  if (NameRefusal(first.Name())) first.Put(kNameField, "Bot");
  const std::string written = WriteCharacteristicFile(first, {});
  // A text that holds a key feeds that key's parameter.
  if (HasTextWith(first, "CHARACTERISTIC_")) return;

  Bot second;
  const ReadReport report = Read(written, second);
  for (const int index : kIdentity) {
    const ParameterId id(index);
    ExpectKept(first.Parameter(id), second.Parameter(id), id);
  }
  ExpectKept(first, second, kParameters);
  const bool reads_alike = !HasTextWith(first, "\"") &&
                           !HasPointInText(first, kIdentity) &&
                           !HasPointInText(first, kParameters);
  Expect(!reads_alike || report.plain_values.empty(),
         "the game reads our own file as we do");

  const std::string again = WriteCharacteristicFile(second, {});
  if (again == written) return;
  Bot third;
  Read(again, third);
  ExpectEqual(again, WriteCharacteristicFile(third, {}), "the file is stable");
}

}  // namespace fragsmith
