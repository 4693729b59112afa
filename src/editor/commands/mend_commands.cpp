#include "editor/commands/mend_commands.h"

#include "editor/pages/page_strip.h"

namespace fragsmith {

MendCommands::MendCommands(CurrentBot& current, BotChecker& checker,
                           QObject* parent)
    : QObject(parent), current_(current), checker_(checker) {}

void MendCommands::Attach(FindingsDock& dock,
                          const std::function<bool()>& store_typing) {
  connect(&dock, &FindingsDock::MendWanted, this,
          [this, store_typing](const BotPlace& place, const Mend& mend) {
            if (!store_typing()) return;
            current_.Edit({.text = QString::fromStdString(mend.title),
                           .place = place,
                           .merges = false},
                          mend.apply);
          });
  connect(&dock, &FindingsDock::MendKindWanted, this,
          [this, store_typing](std::string_view id) {
            if (!store_typing()) return;
            MendMany(tr("Mend all of a kind"), [id](const Finding& finding) {
              return finding.id == id ? FirstMend(finding) : nullptr;
            });
          });
  connect(
      &dock, &FindingsDock::MendSafeWanted, this,
      [this, store_typing](std::optional<int> page) {
        if (!store_typing()) return;
        MendMany(tr("Mend all that is safe"), [page](const Finding& finding) {
          return !page || PageOfPlace(finding.place) == page ? SafeMend(finding)
                                                             : nullptr;
        });
      });
  connect(&dock, &FindingsDock::MakeReadyWanted, this, [this, store_typing] {
    if (!store_typing()) return;
    MendMany(tr("Make it ready for the game"), [this](const Finding& finding) {
      const Mend* const safe = SafeMend(finding);
      return safe == nullptr && IsUntouched(finding.place) ? FirstMend(finding)
                                                           : safe;
    });
  });
}

void MendCommands::MendMany(const QString& name, const MendChoice& choice) {
  Bot mended = current_.bot();
  const int count =
      MendAll(mended, checker_.game(), choice, *current_.origin().report);
  if (count > 0) {
    current_.Edit({.text = name, .place = {}, .merges = false},
                  [&mended](Bot& bot) { bot = mended; });
    checker_.CheckNow();
  }
  const qsizetype left = std::ssize(checker_.findings());
  emit StatusText(tr("Mended: %1. Left: %2.").arg(count).arg(left));
}

bool MendCommands::IsUntouched(const BotPlace& place) const {
  const Bot& bot = current_.bot();
  const Bot& made = current_.loaded();
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    return bot.ChatLines(chat->type) == made.ChatLines(chat->type);
  }
  const auto* const parameter = std::get_if<ParameterId>(&place);
  return parameter == nullptr ||
         bot.Parameter(*parameter) == made.Parameter(*parameter);
}

}  // namespace fragsmith
