#include "editor/findings_dock.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "checks/bot_checks.h"
#include "editor/severity_icon.h"

namespace fragsmith {
namespace {

QString Utf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "2 errors", "1 hint"; nothing for none.
void AddCount(QStringList& counts, qsizetype count, const char* word) {
  if (count == 0) return;
  counts << QStringLiteral("%1 %2%3").arg(count).arg(
      QLatin1String(word), count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

FindingsDock::FindingsDock(QWidget* parent)
    : QDockWidget(QStringLiteral("What the game will do"), parent),
      list_(new FindingsView),
      columns_(new QHBoxLayout),
      mends_(new QHBoxLayout),
      counter_(new QToolButton) {
  setObjectName(QStringLiteral("dockFindings"));
  setFeatures(QDockWidget::DockWidgetClosable);
  setAllowedAreas(Qt::BottomDockWidgetArea);
  list_->setObjectName(QStringLiteral("lstFindings"));
  list_->setAccessibleName(windowTitle());

  auto* const content = new QWidget(this);
  content->setLayout(columns_);
  auto* const column = new QVBoxLayout;
  column->addWidget(list_, 1);
  column->addLayout(mends_);
  columns_->addLayout(column, 3);
  setWidget(content);

  counter_->setObjectName(QStringLiteral("cmdFindings"));
  counter_->setAutoRaise(true);
  counter_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  counter_->setToolTip(
      QStringLiteral("What the game will do with this bot (F8)"));
  connect(counter_, &QToolButton::clicked, this, &FindingsDock::Toggle);
  connect(list_, &QListWidget::itemClicked, this, &FindingsDock::GoToSelected);
  connect(list_, &QListWidget::itemActivated, this,
          &FindingsDock::GoToSelected);
  connect(list_, &FindingsView::SelectionShown, this, &FindingsDock::ShowMends);
  hide();
}

void FindingsDock::Toggle() {
  setVisible(!isVisible());
  if (isVisible()) list_->setFocus();
}

void FindingsDock::SetPicture(QWidget* picture) {
  columns_->addWidget(picture, 2);
}

void FindingsDock::ShowFindings(const std::vector<Finding>& findings) {
  list_->ShowFindings(findings);
  ShowCounts();
}

void FindingsDock::ShowCounts() {
  const std::vector<Finding>& findings = list_->findings();
  const auto count = [&findings](Severity severity) {
    return std::count_if(findings.begin(), findings.end(),
                         [severity](const Finding& finding) {
                           return finding.severity == severity;
                         });
  };
  QStringList counts;
  AddCount(counts, count(Severity::kError), "error");
  AddCount(counts, count(Severity::kWarning), "warning");
  AddCount(counts, count(Severity::kHint), "hint");
  const QString text = counts.isEmpty() ? QStringLiteral("Nothing to tell")
                                        : counts.join(QStringLiteral(", "));
  // Styles leave hardly any room between icon and text.
  counter_->setText(u' ' + text);
  counter_->setIcon(findings.empty()
                        ? style()->standardIcon(QStyle::SP_DialogApplyButton)
                        : SeverityIcon(findings.front().severity, *style()));
  counter_->setAccessibleName(windowTitle() + QStringLiteral(": ") + text);
}

void FindingsDock::ShowMends() {
  while (QLayoutItem* const item = mends_->takeAt(0)) {
    if (item->widget() != nullptr) item->widget()->deleteLater();
    delete item;
  }
  const Finding* const finding = list_->Selected();
  if (finding == nullptr) return;
  for (const Mend& mend : finding->mends) {
    auto* const button =
        new QPushButton(Utf8(mend.title).replace(u'&', QLatin1String("&&")));
    // The list is made anew by the mend itself.
    connect(
        button, &QPushButton::clicked, this,
        [this, place = finding->place, mend] { emit MendWanted(place, mend); });
    mends_->addWidget(button);
  }
  if (const std::size_t count = list_->FoldableCount(); count > 0) {
    const bool is_folded = list_->IsFolded();
    auto* const button =
        new QPushButton(is_folded ? QStringLiteral("Show all %1").arg(count)
                                  : QStringLiteral("Show as one"));
    button->setObjectName(QStringLiteral("cmdFold"));
    connect(
        button, &QPushButton::clicked, list_,
        [this, is_folded] {
          list_->setFocus();  // The button goes.
          list_->Fold(!is_folded);
        },
        Qt::QueuedConnection);
    mends_->addWidget(button);
  }
  // The Tab key goes from the list to its buttons.
  QWidget* before = list_;
  for (int place = 0; place < mends_->count(); ++place) {
    QWidget* const button = mends_->itemAt(place)->widget();
    setTabOrder(before, button);
    before = button;
  }
  mends_->addStretch(1);
}

void FindingsDock::GoToSelected() {
  if (const Finding* const finding = list_->Selected()) {
    emit GoTo(finding->place);
  }
}

}  // namespace fragsmith
