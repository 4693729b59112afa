#include "checks/odd_values.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "chat/vocabulary.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

/// The mend, kept from taking values away that the game has: one that the load
/// read oddly becomes the game's.
Mend WithGameValues(Mend mend,
                    std::shared_ptr<const std::vector<Finding>> odd_values) {
  mend.apply = [apply = std::move(mend.apply),
                odd_values = std::move(odd_values)](Bot& bot) {
    const Bot before = bot;
    apply(bot);
    for (const Finding& odd : *odd_values) {
      const ParameterId id = std::get<ParameterId>(odd.place);
      if (bot.Parameter(id) != before.Parameter(id)) {
        odd.mends.front().apply(bot);
      }
    }
  };
  return mend;
}

}  // namespace

std::vector<Finding> OddValues(const Bot& bot, const LoadReport& report) {
  std::vector<Finding> findings;
  for (const auto& [parameter, value] : report.odd_values) {
    if (value.read == value.plain || !StandsAsRead(bot, parameter, value)) {
      continue;
    }
    const std::string name = QuotedName(parameter);
    findings.push_back(
        {.id = "value-read-oddly",
         .severity = Severity::kWarning,
         .place = parameter,
         .text =
             Localized("The load read %1 for %2, while the game has %3 from "
                       "the file. Take that here, or all such values by \"Take "
                       "the values as the game reads them\".",
                       {ShownValue(value.read), name, ShownValue(value.plain)}),
         .mends = {{.title = Localized("Set %1 to %2, as the game reads it",
                                       {name, ShownValue(value.plain)}),
                    .apply =
                        [id = parameter, plain = value.plain](Bot& one) {
                          // What the bot refuses stays as it was read.
                          (void)one.SetParameter(id, plain);
                        },
                    .is_safe = true}}});
  }
  return findings;
}

void TellOddValues(const Bot& bot, const LoadReport& report,
                   std::vector<Finding>& findings) {
  const auto odd_values =
      std::make_shared<const std::vector<Finding>>(OddValues(bot, report));
  if (odd_values->empty()) return;
  for (Finding& finding : findings) {
    const auto odd =
        std::ranges::find(*odd_values, finding.place, &Finding::place);
    if (odd != odd_values->end()) {
      finding.text =
          odd->text + " " +
          Localized("Made anew as it stands here: %1", {finding.text});
      finding.mends = odd->mends;
      continue;
    }
    for (Mend& mend : finding.mends) {
      mend = WithGameValues(std::move(mend), odd_values);
    }
  }
}

}  // namespace fragsmith
