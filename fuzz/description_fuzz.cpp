#include <algorithm>
#include <array>
#include <string>

#include "botfiles/description_file.h"
#include "botfiles/value_format.h"
#include "fuzz/oracle.h"
#include "support/game_blank.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::array kTextFields = {kFunNameField, kRailColorField, kModelField,
                                    kSkinField};

/// A key within a text feeds its field, wherever it stands, and a brace by
/// itself begins another bot.
bool HasKey(const Bot& bot) {
  return std::any_of(
      kTextFields.begin(), kTextFields.end(), [&](ParameterId field) {
        const std::string text = ToLower(bot.Text(field));
        return Contains(text, "funname") || Contains(text, "color") ||
               Contains(text, "model") || Contains(text, "arenalord") ||
               Contains(text, "{");
      });
}

/// The game takes one word behind a key, which must not be its own syntax; the
/// ";" at its end belongs to it.
bool IsWord(const std::string& text) {
  return !text.empty() && text != "{" && text != "}" &&
         std::ranges::none_of(text, IsGameBlank) && !Contains(text, "\"") &&
         !text.ends_with(';') && !Contains(text, "//") && !Contains(text, "/*");
}

std::string SkinFileName(const std::string& skin) {
  return ToLower(skin) == "default" ? "default" : ModelFileName(skin);
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  Bot first;
  ExpectShowable(ReadDescriptionFile(bytes, "file", first).notes);
  const std::string written = WriteDescriptionFile(first, {});
  if (HasKey(first)) return;

  Bot second;
  const ReadReport report = ReadDescriptionFile(written, "file", second);
  // Reading takes quotes and a ";" off the fun name each time.
  ExpectEqual(ToText(CleanValue(first.FunName())), second.FunName(),
              "fun name");
  ExpectEqual(first.Text(kRailColorField), second.Text(kRailColorField),
              "rail colour");
  ExpectEqual(ModelFileName(first.Text(kModelField)), second.Text(kModelField),
              "model");
  ExpectEqual(SkinFileName(first.Text(kSkinField)), second.Text(kSkinField),
              "skin");
  const bool is_lord = first.Text(kArenaLordField) == "1";
  ExpectEqual(is_lord ? "1" : "0", second.Text(kArenaLordField), "arena lord");

  const std::string look =
      first.Text(kModelField) + "/" + first.Text(kSkinField);
  // A fun name that is a number is read with the digits of a number, which the
  // notes tell.
  const bool is_kept = second.FunName() == first.FunName();
  if (is_kept && IsWord(look) && IsWord(first.FunName()) &&
      IsWord(first.Text(kRailColorField))) {
    Expect(report.plain_values.empty(), "the game reads our own file as we do");
  }
  if (is_kept) {
    ExpectEqual(written, WriteDescriptionFile(second, {}),
                "the file is stable");
  }
}

}  // namespace fragsmith
