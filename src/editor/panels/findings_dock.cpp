#include "editor/panels/findings_dock.h"

#include <QMainWindow>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>

#include "checks/mend_all.h"
#include "editor/pages/page_strip.h"
#include "editor/toolkit/finding_counts.h"
#include "editor/toolkit/severity_icon.h"

namespace fragsmith {

FindingsDock::FindingsDock(QWidget* parent)
    : QDockWidget(tr("What the game will do"), parent),
      many_(new QBoxLayout(QBoxLayout::TopToBottom)),
      list_(new FindingsView),
      fold_(new QPushButton),
      counter_(new QToolButton) {
  setObjectName(QStringLiteral("dockFindings"));
  setFeatures(QDockWidget::DockWidgetClosable);
  setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
  list_->setObjectName(QStringLiteral("lstFindings"));
  list_->setAccessibleName(windowTitle());

  ready_ = AddButton(many_, "cmdMakeReady", tr("Make it ready for the game"),
                     tr("Mends all that nobody has edited yet, chat lines that "
                        "this game lacks included; one step of undo"));
  auto* const safe = new QHBoxLayout;
  safe_ = AddButton(safe, "cmdMendSafe", tr("Mend all that is safe"),
                    tr("Mends what takes nothing away that you wrote and that "
                       "the game would use; one step of undo"));
  safe_on_page_ =
      AddButton(safe, "cmdMendSafeOnPage", tr("On this page"),
                tr("The same for what stands on the page in sight"));
  many_->addLayout(safe);
  auto* const one = new QHBoxLayout;
  mend_ = AddButton(one, "cmdMend", tr("Mend the selected one"),
                    tr("Does what the button in its row does, as the space bar "
                       "does in the list"));
  fold_->setObjectName(QStringLiteral("cmdFold"));
  one->addWidget(fold_);
  many_->addLayout(one);
  ShowSelected();

  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  column->addLayout(many_);
  column->addWidget(list_, 1);
  setWidget(content);
  connect(this, &QDockWidget::dockLocationChanged, this,
          [this](Qt::DockWidgetArea area) {
            many_->setDirection(area == Qt::RightDockWidgetArea
                                    ? QBoxLayout::TopToBottom
                                    : QBoxLayout::LeftToRight);
          });
  connect(ready_, &QPushButton::clicked, this, &FindingsDock::MakeReadyWanted);
  connect(safe_, &QPushButton::clicked, this,
          [this] { emit MendSafeWanted(std::nullopt); });
  connect(safe_on_page_, &QPushButton::clicked, this,
          [this] { emit MendSafeWanted(page_); });
  connect(mend_, &QPushButton::clicked, list_, &FindingsView::PressSelected);
  connect(fold_, &QPushButton::clicked, this, [this] {
    const bool is_folded = list_->IsFolded();
    list_->setFocus();
    list_->Fold(!is_folded);
  });
  connect(list_, &FindingsView::MendPressed, this, &FindingsDock::MendOrAsk);
  connect(list_, &FindingsView::MendKindPressed, this,
          &FindingsDock::MendKindWanted);

  counter_->setObjectName(QStringLiteral("cmdFindings"));
  counter_->setAutoRaise(true);
  counter_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  counter_->setToolTip(tr("What the game will do with this bot (F8)"));
  connect(counter_, &QToolButton::clicked, this, &FindingsDock::Toggle);
  connect(list_, &QListView::clicked, this, &FindingsDock::GoToSelected);
  connect(list_, &QListView::activated, this, &FindingsDock::GoToSelected);
  connect(list_, &FindingsView::SelectionShown, this,
          &FindingsDock::ShowSelected);
  hide();
}

void FindingsDock::Toggle() {
  setVisible(!isVisible());
  if (!isVisible()) return;
  // Below the pages it leaves them most of the room.
  auto* const window = qobject_cast<QMainWindow*>(parentWidget());
  if (window != nullptr &&
      window->dockWidgetArea(this) == Qt::BottomDockWidgetArea) {
    constexpr int kShare = 3;
    window->resizeDocks({this}, {window->height() / kShare}, Qt::Vertical);
  }
  list_->setFocus();
}

QPushButton* FindingsDock::AddButton(QBoxLayout* row, const char* name,
                                     const QString& text, const QString& help) {
  auto* const button = new QPushButton(text);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(help);
  row->addWidget(button);
  return button;
}

void FindingsDock::ShowFindings(const std::vector<Finding>& findings,
                                bool is_in_no_file) {
  list_->ShowFindings(findings);
  ready_->setVisible(is_in_no_file);
  ShowCounts();
  ShowManyButtons();
}

void FindingsDock::ShowPage(int page) {
  page_ = page;
  ShowManyButtons();
}

void FindingsDock::ShowManyButtons() {
  const std::vector<Finding>& findings = list_->findings();
  ready_->setEnabled(std::ranges::any_of(
      findings, [](const Finding& finding) { return !finding.mends.empty(); }));
  safe_->setEnabled(std::ranges::any_of(
      findings, [](const Finding& finding) { return SafeMend(finding); }));
  safe_on_page_->setEnabled(
      std::ranges::any_of(findings, [this](const Finding& finding) {
        return SafeMend(finding) && PageOfPlace(finding.place) == page_;
      }));
}

void FindingsDock::MendOrAsk(const Finding& finding) {
  if (finding.mends.size() == 1) {
    emit MendWanted(finding.place, finding.mends.front());
    return;
  }
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Mend& mend : finding.mends) {
    connect(
        menu->addAction(
            QString::fromUtf8(mend.title).replace(u'&', QLatin1String("&&"))),
        &QAction::triggered, this,
        [this, place = finding.place, mend] { emit MendWanted(place, mend); });
  }
  menu->popup(QCursor::pos());
}

void FindingsDock::ShowCounts() {
  const FindingCounts counts(list_->findings());
  const QString text = counts.Text();
  // Styles leave hardly any room between icon and text.
  counter_->setText(u' ' + text);
  const std::optional<Severity> worst = counts.Worst();
  counter_->setIcon(worst
                        ? SeverityIcon(*worst, *style())
                        : style()->standardIcon(QStyle::SP_DialogApplyButton));
  counter_->setAccessibleName(windowTitle() + QStringLiteral(": ") + text);
}

void FindingsDock::ShowSelected() {
  const Finding* const selected = list_->Selected();
  mend_->setEnabled(selected != nullptr && !selected->mends.empty());
  const std::size_t count = list_->FoldableCount();
  fold_->setEnabled(count > 0);
  fold_->setText(count > 0 && list_->IsFolded() ? tr("Show all %1").arg(count)
                                                : tr("Show as one"));
}

void FindingsDock::GoToSelected() {
  if (const Finding* const finding = list_->Selected()) {
    emit GoTo(finding->place);
  }
}

}  // namespace fragsmith
