#include "editor/controls/findings_view.h"

#include <QKeyEvent>
#include <algorithm>
#include <map>

#include "checks/bot_checks.h"
#include "editor/severity_icon.h"

namespace fragsmith {
namespace {

/// So many of one kind are told one by one.
constexpr std::size_t kMostAlone = 2;

QString Utf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString TextOf(const Finding& finding) {
  const QString place = Utf8(ChatPlaceText(finding.place));
  const QString text = Utf8(finding.text);
  return place.isEmpty() ? text : place + QStringLiteral(": ") + text;
}

QString FoldedText(const Finding& first, std::size_t count) {
  return QStringLiteral("%1 (And %2 more of this kind.)")
      .arg(TextOf(first), QString::number(count - 1));
}

}  // namespace

FindingsView::FindingsView(QWidget* parent) : QListWidget(parent) {
  setWordWrap(true);
  const int icon = fontMetrics().height();
  setIconSize(QSize(icon, icon));
  setMinimumHeight(5 * fontMetrics().lineSpacing());
  const QString help = QStringLiteral(
      "The right arrow key or a double click unfolds what stands in one row, "
      "the left one folds it again.");
  setWhatsThis(help);
  setAccessibleDescription(help);
  connect(this, &QListWidget::currentRowChanged, this,
          &FindingsView::SelectionShown);
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this] { Fold(!IsFolded()); });
}

void FindingsView::ShowFindings(const std::vector<Finding>& findings) {
  const Finding* const now = Selected();
  const Finding selected = now == nullptr ? Finding() : *now;
  findings_ = findings;
  FillRows(selected);
}

const Finding* FindingsView::Selected() const {
  if (currentRow() < 0) return nullptr;
  return &findings_[rows_[static_cast<std::size_t>(currentRow())]];
}

std::size_t FindingsView::FoldableCount() const {
  const Finding* const selected = Selected();
  if (selected == nullptr) return 0;
  const auto count = static_cast<std::size_t>(std::count_if(
      findings_.begin(), findings_.end(), [selected](const Finding& finding) {
        return finding.id == selected->id;
      }));
  return count > kMostAlone ? count : 0;
}

bool FindingsView::IsFolded() const {
  return FoldableCount() > 0 && !unfolded_.contains(Selected()->id);
}

void FindingsView::Fold(bool is_folded) {
  if (FoldableCount() == 0 || is_folded == IsFolded()) return;
  const Finding selected = *Selected();
  if (is_folded) {
    unfolded_.erase(selected.id);
  } else {
    unfolded_.insert(selected.id);
  }
  FillRows(selected);
}

void FindingsView::FillRows(const Finding& selected) {
  {
    const QSignalBlocker silence(this);
    clear();
    rows_.clear();
    std::map<std::string_view, std::size_t> counts;
    for (const Finding& finding : findings_) ++counts[finding.id];
    std::set<std::string_view> told;
    int current = -1;
    for (std::size_t number = 0; number < findings_.size(); ++number) {
      const Finding& finding = findings_[number];
      const std::size_t count = counts[finding.id];
      const bool is_folded =
          count > kMostAlone && !unfolded_.contains(finding.id);
      if (is_folded && !told.insert(finding.id).second) continue;
      const bool is_selected = finding.id == selected.id &&
                               (is_folded || finding.place == selected.place);
      if (is_selected && current < 0) current = this->count();
      rows_.push_back(number);
      auto* const item = new QListWidgetItem(
          SeverityIcon(finding.severity, *style()),
          is_folded ? FoldedText(finding, count) : TextOf(finding), this);
      if (is_folded) item->setToolTip(whatsThis());
    }
    setCurrentRow(current);
  }
  emit SelectionShown();
}

void FindingsView::keyPressEvent(QKeyEvent* event) {
  const bool is_fold = event->key() == Qt::Key_Left;
  if ((is_fold || event->key() == Qt::Key_Right) && FoldableCount() > 0) {
    Fold(is_fold);
    return;
  }
  QListWidget::keyPressEvent(event);
}

}  // namespace fragsmith
