#include "botfiles/standard_identity.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "botfiles/description_file.h"

namespace fragsmith {
namespace {

constexpr std::string_view kDefaultModel = "Sarge";
constexpr std::string_view kDefaultSkin = "Default";

struct Identity {
  std::string_view name;
  std::string_view model;  ///< Empty: the bot's own name.
  bool names_skin;         ///< The skin is called like the bot.
  std::string_view fun_name;
  bool is_arena_lord;
};

/// The standard bots that differ from "a model of that name, skin Default".
constexpr std::array<Identity, 16> kIdentities = {{
    {"Anarki", "", false, "^1A^2n^3a^4r^5k^6i", true},
    {"Cadavre", "Biker", true, "", false},
    {"Hossman", "Biker", true, "", false},
    {"Patriot", "Razor", true, "", false},
    {"Angel", "Lucy", true, "", false},
    {"Daemia", "Major", true, "", false},
    {"Gorre", "Visor", true, "", false},
    {"Phobos", "Doom", true, "", false},
    {"Stripe", "Grunt", true, "", false},
    {"Wrack", "Ranger", true, "", false},
    {"Sarge", "", false, "", true},
    {"Hunter", "", false, "", true},
    {"Uriel", "", false, "", true},
    {"Xaero", "", false, "", true},
    {"Klesk", "", false, "", true},
    {"", "", false, "", false},
}};

const Identity& IdentityOf(std::string_view name) {
  const auto* const found =
      std::find_if(kIdentities.begin(), kIdentities.end(),
                   [name](const Identity& row) { return row.name == name; });
  // The last row holds for every other name.
  return found == kIdentities.end() ? kIdentities.back() : *found;
}

void Set(Bot& bot, ParameterId field, std::string_view text) {
  bot.Put(field, std::string(text));
}

}  // namespace

void SetStandardIdentity(Bot& bot, const StandardBotNames& standard_bots) {
  ResetDescription(bot);
  Set(bot, kModelField, kDefaultModel);
  Set(bot, kSkinField, kDefaultSkin);
  const std::string name = bot.Name();
  if (!standard_bots.contains(name)) return;
  const Identity& identity = IdentityOf(name);
  Set(bot, kModelField, identity.model.empty() ? name : identity.model);
  Set(bot, kSkinField, identity.names_skin ? name : kDefaultSkin);
  Set(bot, kFunNameField, identity.fun_name);
  if (identity.is_arena_lord) bot.Put(kArenaLordField, 1.0);
}

void FillStandardIdentity(Bot& bot, bool has_arena_lord,
                          const StandardBotNames& standard_bots) {
  const std::string name = bot.Name();
  if (!standard_bots.contains(name)) return;
  const Identity& identity = IdentityOf(name);
  if (bot.FunName().empty()) Set(bot, kFunNameField, identity.fun_name);
  if (identity.is_arena_lord && !has_arena_lord) {
    bot.Put(kArenaLordField, 1.0);
  }
}

}  // namespace fragsmith
