#include "editor/dialogs/match_results.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

#include "chat/chat_catalogue.h"
#include "editor/dialogs/dialog_parts.h"
#include "editor/toolkit/game_text_conversion.h"
#include "trial/match_words.h"

namespace fragsmith {
namespace {

enum SaidColumn { kTimes, kLine, kSituation, kSaidColumns };

/// Where a row of what was said keeps the number of its line, and what was
/// said where it is none of the bot's.
constexpr int kLineRole = Qt::UserRole;

QTreeWidget* MakeList(const char* name, const QString& accessible_name,
                      const QStringList& headings, QWidget* parent) {
  auto* const list = new QTreeWidget(parent);
  SetUpRows(*list, name, accessible_name, headings);
  list->setSortingEnabled(true);
  list->sortByColumn(0, Qt::DescendingOrder);
  return list;
}

QString SituationsOf(const OwnLine& line) {
  QStringList captions;
  for (const ChatPlace& place : line.places) {
    const QString caption = QString::fromUtf8(ChatTypeAt(place.type).Caption);
    if (!captions.contains(caption)) captions << caption;
  }
  return captions.join(QStringLiteral(", "));
}

QString TitleOf(const MatchSession& session) {
  return QString::fromStdString(session.names.at(0) + " - " +
                                session.names.at(1));
}

}  // namespace

MatchResults::MatchResults(QWidget* parent)
    : QWidget(parent),
      verdict_(new QLabel(this)),
      share_(new SharePlot(this)),
      kills_(new KillBars(this)),
      bots_(new QTableWidget(this)),
      said_(MakeList("lstSaid", tr("What it said"),
                     {tr("Times"), tr("Line"), tr("Situation")}, this)),
      took_(MakeList("lstTook", tr("What it took"),
                     {tr("Times"), tr("Item"), tr("Every so many seconds")},
                     this)),
      evidence_(new MatchFindings(this)),
      strength_(new StrengthList(this)) {
  setObjectName(QStringLiteral("pnlResults"));
  verdict_->setObjectName(QStringLiteral("lblVerdict"));
  verdict_->setWordWrap(true);
  verdict_->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                    Qt::TextSelectableByKeyboard);
  QFont bold = font();
  bold.setBold(true);
  verdict_->setFont(bold);
  verdict_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  verdict_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  bots_->setObjectName(QStringLiteral("tblBots"));
  bots_->setAccessibleName(tr("Figures of both bots"));
  bots_->setColumnCount(8);
  bots_->setHorizontalHeaderLabels(
      {tr("Points"), tr("Share"), tr("Kills"), tr("Deaths"), tr("By itself"),
       tr("Items"), tr("Frags a minute"), tr("Deaths a minute")});
  bots_->setRowCount(2);
  bots_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  bots_->setSelectionMode(QAbstractItemView::NoSelection);
  bots_->horizontalHeader()->setSectionResizeMode(
      QHeaderView::ResizeToContents);
  bots_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  bots_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(verdict_);
  auto* const pictures = new QHBoxLayout;
  pictures->setSpacing(16);
  pictures->addWidget(share_, 1);
  pictures->addWidget(kills_, 1);
  column->addLayout(pictures, 3);
  column->addWidget(bots_);
  column->addWidget(MakeLists(), 2);
}

QWidget* MatchResults::MakeLists() {
  lists_ = new QTabWidget(this);
  lists_->setObjectName(QStringLiteral("tabLists"));
  lists_->addTab(said_, tr("What it s&aid"));
  lists_->addTab(took_, tr("What it &took"));
  lists_->addTab(evidence_, tr("&Findings"));
  lists_->addTab(strength_, tr("St&rength"));
  evidence_->setToolTip(
      tr("What was found in the bot, where the matches confirm or contradict "
         "it; double click or Enter leads to it"));
  connect(evidence_, &MatchFindings::PlaceWanted, this,
          &MatchResults::PlaceWanted);
  said_->header()->setStretchLastSection(false);
  said_->header()->setSectionResizeMode(kLine, QHeaderView::Stretch);
  said_->setToolTip(tr("Double click or Enter leads to the line"));
  connect(said_, &QTreeWidget::itemActivated, this,
          [this](const QTreeWidgetItem* item) { GoToLine(*item); });
  return lists_;
}

void MatchResults::ShowSession(MatchSession& session,
                               const std::vector<const MatchSession*>& others) {
  const bool is_same = shown_ == &session;
  shown_ = &session;
  QString verdict = QString::fromStdString(VerdictOf(session));
  if (!session.remark.empty()) {
    verdict += u'\n' + QString::fromStdString(session.remark);
  }
  verdict_->setText(verdict);
  std::vector<ShareLine> lines = {{TitleOf(session), session.shares}};
  for (const MatchSession* const other : others) {
    lines.push_back({TitleOf(*other), other->shares});
  }
  const bool is_open_end = session.is_until_sure() || session.search;
  share_->ShowShares(std::move(lines), is_open_end ? 0 : session.games);
  const MatchReport& report = session.report;
  const BotSums sums = SumsOf(report, 0);
  kills_->ShowKills(session.bot, sums.kills, SumsOf(report, 1).kills,
                    QString::fromStdString(session.names.at(1)));
  ShowFigures(report, session.names);
  if (!is_same) {
    said_->clear();
    took_->clear();
  }
  ShowSaid(session, sums.said);
  ShowTook(report);
  const std::vector<MatchEvidence> evidence =
      EvidenceOf(session.findings, report, session.said);
  evidence_->ShowEvidence(session.findings, evidence);
  lists_->setTabVisible(lists_->indexOf(evidence_), !evidence.empty());
  lists_->setTabVisible(lists_->indexOf(strength_), session.search.has_value());
  if (session.search) {
    strength_->ShowStrength(session.bot, session.search->tuner.strength());
    if (!is_same) lists_->setCurrentWidget(strength_);
  }
}

void MatchResults::ShowFigures(const MatchReport& report,
                               const std::vector<std::string>& names) {
  bots_->setVerticalHeaderLabels({QString::fromStdString(names.at(0)),
                                  QString::fromStdString(names.at(1))});
  const std::vector<BotFigures> figures = FiguresOf(TalliesOf(report));
  for (std::size_t bot = 0; bot < names.size(); ++bot) {
    QStringList cells;
    if (bot < figures.size()) {
      const BotSums sums = SumsOf(report, bot);
      const int by_itself = sums.suicides + sums.falls;
      cells << QString::number(sums.score)
            << QString::fromStdString(ShownShare(figures[bot].share))
            << QString::number(Sum(sums.kills))
            << QString::number(Sum(sums.deaths) + by_itself)
            << QString::number(by_itself) << QString::number(Sum(sums.items))
            << QString::fromStdString(
                   Shown(figures[bot].frags_a_minute, 1, 2, ""))
            << QString::fromStdString(
                   Shown(figures[bot].deaths_a_minute, 1, 2, ""));
    }
    for (int cell = 0; cell < bots_->columnCount(); ++cell) {
      auto* const item = new QTableWidgetItem(cells.value(cell));
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      bots_->setItem(static_cast<int>(bot), cell, item);
    }
  }
  const int frame = 2 * bots_->frameWidth();
  bots_->setFixedHeight(
      bots_->horizontalHeader()->sizeHint().height() +
      bots_->verticalHeader()->length() + frame +
      bots_->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void MatchResults::ShowSaid(MatchSession& session, const Counts& said) {
  std::map<std::size_t, int> counts;
  Counts others;
  for (const auto& [text, count] : said) {
    if (const std::optional<std::size_t> line = session.said.Find(text)) {
      counts[*line] += count;
    } else {
      others[text] += count;
    }
  }
  // By the number of the line, or by the text of what is none.
  std::map<QVariant, QTreeWidgetItem*,
           bool (*)(const QVariant&, const QVariant&)>
      items([](const QVariant& left, const QVariant& right) {
        return left.toString() < right.toString();
      });
  for (int row = 0; row < said_->topLevelItemCount(); ++row) {
    QTreeWidgetItem* const item = said_->topLevelItem(row);
    items[item->data(0, kLineRole)] = item;
  }
  // Sorted once, and not at each change.
  said_->setSortingEnabled(false);
  const auto item_of = [&](const QVariant& key) {
    QTreeWidgetItem*& item = items[key];
    if (item == nullptr) {
      item = new QTreeWidgetItem(said_);
      item->setData(0, kLineRole, key);
      item->setTextAlignment(kTimes, Qt::AlignRight | Qt::AlignVCenter);
    }
    return item;
  };
  const QColor faint = palette().color(QPalette::PlaceholderText);
  const std::vector<OwnLine>& lines = session.said.lines();
  for (std::size_t line = 0; line < lines.size(); ++line) {
    QTreeWidgetItem* const item = item_of(static_cast<qulonglong>(line));
    const QString text = ToQString(lines[line].text);
    QString situation = SituationsOf(lines[line]);
    const int count = counts[line];
    if (count == 0 && !session.report.played.empty()) {
      situation = lines[line].can_be_told
                      ? tr("never heard: %1").arg(situation)
                      : tr("cannot be told: %1").arg(situation);
    }
    item->setData(kTimes, Qt::DisplayRole, count);
    item->setText(kLine, text);
    item->setToolTip(kLine, text.toHtmlEscaped());
    item->setText(kSituation, situation);
    for (int cell = 0; cell < kSaidColumns; ++cell) {
      item->setForeground(cell,
                          count == 0 ? faint : palette().brush(QPalette::Text));
    }
  }
  const bool may_be_any =
      std::any_of(lines.begin(), lines.end(),
                  [](const OwnLine& line) { return !line.can_be_told; });
  for (const auto& [text, count] : others) {
    const QString shown = ToQString(text);
    QTreeWidgetItem* const item = item_of(u'=' + shown);
    item->setData(kTimes, Qt::DisplayRole, count);
    item->setText(kLine, shown);
    item->setText(kSituation, may_be_any ? tr("a ready-made line, or a reply")
                                         : tr("none of its lines"));
  }
  said_->setSortingEnabled(true);
}

void MatchResults::ShowTook(const MatchReport& report) {
  std::map<QString, QTreeWidgetItem*> items;
  for (int row = 0; row < took_->topLevelItemCount(); ++row) {
    QTreeWidgetItem* const item = took_->topLevelItem(row);
    items[item->text(1)] = item;
  }
  took_->setSortingEnabled(false);
  const std::map<std::string, double> seconds = SecondsPerItem(report, 0);
  for (const auto& [name, count] : SumsOf(report, 0).items) {
    const QString shown = ToQString(name);
    QTreeWidgetItem*& item = items[shown];
    if (item == nullptr) item = new QTreeWidgetItem(took_);
    item->setData(0, Qt::DisplayRole, count);
    item->setText(1, shown);
    item->setData(2, Qt::DisplayRole,
                  static_cast<int>(std::lround(seconds.at(name))));
  }
  took_->setSortingEnabled(true);
}

void MatchResults::GoToLine(const QTreeWidgetItem& item) {
  bool is_line = false;
  const qulonglong line = item.data(0, kLineRole).toULongLong(&is_line);
  if (!is_line || shown_ == nullptr) return;
  const OwnLine& own = shown_->said.lines().at(line);
  emit LineWanted(own.places.front(), own.text);
}

}  // namespace fragsmith
