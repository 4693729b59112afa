#include "editor/dialogs/match_findings.h"

#include <QHeaderView>
#include <cstddef>

#include "editor/dialogs/dialog_parts.h"

namespace fragsmith {
namespace {

enum Column { kVerdict, kSeen, kFound, kColumns };

}  // namespace

MatchFindings::MatchFindings(QWidget* parent) : QTreeWidget(parent) {
  SetUpRows(*this, "lstEvidence", tr("Findings and what the matches show"),
            {tr("Matches"), tr("What was seen"), tr("Finding")});
  header()->setSectionResizeMode(kFound, QHeaderView::Interactive);
  connect(this, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) {
            const int row = indexOfTopLevelItem(item);
            if (row < static_cast<int>(places_.size())) {
              emit PlaceWanted(places_[static_cast<std::size_t>(row)]);
            }
          });
}

void MatchFindings::ShowEvidence(const std::vector<Finding>& findings,
                                 const std::vector<MatchEvidence>& evidence) {
  // As many rows as before in most cases: the selection stays.
  while (topLevelItemCount() > static_cast<int>(evidence.size())) {
    delete takeTopLevelItem(topLevelItemCount() - 1);
  }
  places_.clear();
  for (const MatchEvidence& one : evidence) {
    const int row = static_cast<int>(places_.size());
    QTreeWidgetItem* const item = row < topLevelItemCount()
                                      ? topLevelItem(row)
                                      : new QTreeWidgetItem(this);
    const Finding& finding = findings.at(one.finding);
    const QString found = QString::fromStdString(finding.text);
    item->setText(kVerdict, one.confirms ? tr("confirm") : tr("contradict"));
    item->setText(kSeen, QString::fromStdString(one.text));
    item->setText(kFound, found);
    for (int cell = 0; cell < kColumns; ++cell) {
      item->setToolTip(cell, found.toHtmlEscaped());
      QFont font = this->font();
      font.setBold(!one.confirms);
      item->setFont(cell, font);
    }
    places_.push_back(finding.place);
  }
}

}  // namespace fragsmith
