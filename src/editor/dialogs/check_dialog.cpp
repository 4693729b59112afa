#include "editor/dialogs/check_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <utility>

#include "checks/bot_checks.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/shown_path.h"
#include "editor/toolkit/wheel_guard.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// What becomes of the bot, by the gravest that was found.
QString VerdictOn(const std::vector<Finding>& findings) {
  const auto has = [&findings](Severity severity) {
    return std::any_of(findings.begin(), findings.end(),
                       [severity](const Finding& finding) {
                         return finding.severity == severity;
                       });
  };
  if (has(Severity::kError)) {
    return frmCheck::tr(
        "There are errors: the game does not take this bot as it is meant, or "
        "takes it at some skills only.");
  }
  return has(Severity::kWarning)
             ? frmCheck::tr(
                   "The game takes this bot, but not all of it as "
                   "it is meant.")
             : frmCheck::tr("The game takes this bot as it is.");
}

/// Those of the folder's packages; of too many of them the user chooses one.
std::vector<BotLocation> BotsOfPackagesIn(const fs::path& folder) {
  constexpr std::size_t kMaxPackages = 50;
  std::vector<BotLocation> found;
  const std::vector<fs::path> packages = ListFiles(folder, kPackageEnd);
  if (packages.size() > kMaxPackages) return found;
  for (const fs::path& package : packages) {
    const Result<std::vector<BotLocation>> bots = BotsAt(folder / package);
    if (bots) found.insert(found.end(), bots->begin(), bots->end());
  }
  return found;
}

}  // namespace

frmCheck::frmCheck(const fs::path& folder, const FolderPlaces& places,
                   const InstalledGame* game, Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      game_(game),
      browser_(new DirView(prompts, this)),
      bot_(new QComboBox(this)),
      found_(new FindingsView(this)),
      verdict_(new HintLine(2, this)) {
  setObjectName(QStringLiteral("frmCheck"));
  setWindowTitle(tr("Check a bot's files"));
  setSizeGripEnabled(true);
  auto* const column = new QVBoxLayout(this);
  auto* const sides = new QHBoxLayout;
  sides->setSpacing(fontMetrics().lineSpacing());
  sides->addWidget(browser_, 1);
  sides->addLayout(MakeResult(), 1);
  column->addLayout(sides, 1);
  column->addWidget(verdict_);
  auto* const buttons = new QDialogButtonBox(this);
  auto* const close =
      buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("cmdClose"));
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  const int line = fontMetrics().lineSpacing();
  resize(60 * line, 32 * line);

  // Nothing waits for the end of a check: keys and clicks come first.
  timer_.setSingleShot(true);
  timer_.setInterval(0);
  connect(&timer_, &QTimer::timeout, this, &frmCheck::Check);
  QStringList ends;
  for (const std::string_view end :
       {kCharacterEnd, kItemWeightEnd, kWeaponWeightEnd, kChatEnd,
        kDescriptionEnd, kPackageEnd}) {
    ends << QString::fromUtf8(end);
  }
  browser_->SetFilters(ends, tr("of bots"));
  connect(browser_, &DirView::FolderShown, this, &frmCheck::FindBots);
  connect(browser_, &DirView::FileChosen, this, &frmCheck::FindBots);
  connect(bot_, &QComboBox::activated, this, &frmCheck::CheckSoon);
  browser_->SetPlaces(places);
  browser_->SetFolder(folder);
  browser_->findChild<QListWidget*>(QStringLiteral("filFile"))->setFocus();
}

QLayout* frmCheck::MakeResult() {
  IgnoreWheelWithoutFocus(*bot_);
  bot_->setObjectName(QStringLiteral("cmbBot"));
  bot_->setAccessibleName(tr("Bot"));
  auto* const fields = new QFormLayout;
  fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  fields->addRow(tr("&Bot:"), bot_);
  found_->setObjectName(QStringLiteral("lstFound"));
  found_->SetOfFilesAlone();
  auto* const caption = new QLabel(tr("What the &game will do:"));
  caption->setBuddy(found_);
  found_->setAccessibleName(tr("What the game will do"));
  auto* const column = new QVBoxLayout;
  column->addLayout(fields);
  column->addWidget(caption);
  column->addWidget(found_, 1);
  return column;
}

void frmCheck::FindBots() {
  const fs::path chosen = browser_->ChosenFile().value_or(browser_->Folder());
  Result<std::vector<BotLocation>> bots = BotsAt(chosen);
  bots_ = bots ? std::move(*bots) : std::vector<BotLocation>();
  const bool are_in_packages = bots && bots_.empty();
  if (are_in_packages) bots_ = BotsOfPackagesIn(chosen);
  bot_->clear();
  for (const BotLocation& bot : bots_) {
    QString name = ToQString(bot.name);
    if (are_in_packages) {
      name += QStringLiteral(" (%1)").arg(ShownPath(bot.package.filename()));
    }
    bot_->addItem(name);
  }
  bot_->setEnabled(bots_.size() > 1);
  found_->ShowFindings({});
  if (!bots_.empty()) return CheckSoon();
  timer_.stop();
  if (!bots) {
    return verdict_->Say(QString::fromStdString(Describe(bots.error())));
  }
  const std::string why = WhyNoBots(chosen);
  verdict_->Say(
      tr("There is no bot in %1.").arg(ShownPath(chosen)) + u' ' +
      (why.empty() ? tr("The files of a bot end in _c.c, _w.c, _i.c, _t.c and "
                        ".bot; of many packages choose one.")
                   : QString::fromStdString(why)));
}

void frmCheck::CheckSoon() {
  verdict_->Say(tr("Checking..."));
  timer_.start();
}

void frmCheck::Check() {
  const BotLocation& bot =
      bots_.at(static_cast<std::size_t>(std::max(0, bot_->currentIndex())));
  const LocationCheck check(bot, false, game_);
  std::vector<Finding> findings = check.OfAll(check.Read());
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& one, const Finding& other) {
                     return one.severity < other.severity;
                   });
  // Mends are for the bot that is loaded.
  for (Finding& finding : findings) finding.mends.clear();
  found_->ShowFindings(findings);
  verdict_->Say(VerdictOn(findings));
}

}  // namespace fragsmith
