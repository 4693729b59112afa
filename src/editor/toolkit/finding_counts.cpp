#include "editor/toolkit/finding_counts.h"

#include <QStringList>
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "checks/bot_checks.h"

namespace fragsmith {
namespace {

/// "2 errors", "1 hint".
QString CountText(Severity severity, int count) {
  const std::string_view word = SeverityWord(severity);
  return QStringLiteral("%1 %2%3").arg(count).arg(
      QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size())),
      count == 1 ? QString() : QStringLiteral("s"));
}

QString NoneText() { return QStringLiteral("Nothing to tell"); }

}  // namespace

FindingCounts::FindingCounts(const std::vector<Finding>& findings) {
  for (const Finding& finding : findings) {
    ++counts_.at(static_cast<std::size_t>(finding.severity));
  }
}

std::optional<Severity> FindingCounts::Worst() const {
  for (std::size_t place = 0; place < counts_.size(); ++place) {
    if (counts_[place] > 0) return static_cast<Severity>(place);
  }
  return std::nullopt;
}

qlonglong FindingCounts::Gravity() const {
  constexpr int kMaxCounted = 9999;
  qlonglong gravity = 0;
  for (const int count : counts_) {
    gravity = gravity * (kMaxCounted + 1) + std::min(count, kMaxCounted);
  }
  return gravity;
}

QString FindingCounts::Text() const {
  QStringList texts;
  for (std::size_t place = 0; place < counts_.size(); ++place) {
    if (counts_[place] == 0) continue;
    texts << CountText(static_cast<Severity>(place), counts_[place]);
  }
  return texts.isEmpty() ? NoneText() : texts.join(QStringLiteral(", "));
}

QString FindingCounts::WorstText() const {
  const std::optional<Severity> worst = Worst();
  return worst ? CountText(*worst, counts_[static_cast<std::size_t>(*worst)])
               : NoneText();
}

}  // namespace fragsmith
