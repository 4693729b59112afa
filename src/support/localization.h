#ifndef FRAGSMITH_SUPPORT_LOCALIZATION_H_
#define FRAGSMITH_SUPPORT_LOCALIZATION_H_

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace fragsmith {

// Texts for the user stand in the code in English, as whole sentences: only a
// whole sentence can be put into another language. scripts/translations
// collects those that stand in one of the two calls below.

/// Marks a text of a table, or one of two that are chosen from, for the
/// translators. Localized() puts it into the user's language where it is shown.
constexpr std::string_view Localizable(std::string_view english) {
  return english;
}

/// The text in the user's language, UTF-8, with "%1" to "%9" in it replaced by
/// the values. A "%" before anything else, or before a number that has no
/// value, stays.
std::string Localized(std::string_view english,
                      std::initializer_list<std::string_view> values = {});

/// Gives a text in another language, and the English one where it has none.
using Translation = std::function<std::string(std::string_view english)>;

/// Sets the user's language; without a translation it is English. To be called
/// before other threads are there.
void LocalizeBy(Translation translation);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_LOCALIZATION_H_
