#include "editor/toolkit/finding_counts.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cstddef>

namespace fragsmith {
namespace {

QString Translated(const char* text) {
  return QCoreApplication::translate("FindingCounts", text);
}

// By severity, the gravest first.
constexpr std::array kOne = {QT_TRANSLATE_NOOP("FindingCounts", "%1 error"),
                             QT_TRANSLATE_NOOP("FindingCounts", "%1 warning"),
                             QT_TRANSLATE_NOOP("FindingCounts", "%1 hint")};
constexpr std::array kMany = {QT_TRANSLATE_NOOP("FindingCounts", "%1 errors"),
                              QT_TRANSLATE_NOOP("FindingCounts", "%1 warnings"),
                              QT_TRANSLATE_NOOP("FindingCounts", "%1 hints")};

QString CountText(Severity severity, int count) {
  return Translated(
             (count == 1 ? kOne : kMany).at(static_cast<std::size_t>(severity)))
      .arg(count);
}

QString NoneText() {
  return Translated(QT_TRANSLATE_NOOP("FindingCounts", "Nothing to tell"));
}

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
