#include "editor/dialogs/bot_list_box.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "editor/toolkit/game_text_conversion.h"

namespace fragsmith {
namespace {

struct Heading {
  const char* name;
  const char* text;
  int column;  ///< Characters in front of it.
};

/// The columns are those of BotListLine.
constexpr std::array<Heading, 3> kHeadings = {{
    {"lblBot", "&Bot", 0},
    {"lblPk3File", "Pk3-file", 15},
    {"lblBotFile", "Botfile", 35},
}};

/// The last heading is longer than what stands below it.
constexpr int kLineWidth = 43;
constexpr int kMinLines = 10;

int WidthOf(int characters, const QFont& font) {
  const QString blanks(characters, u' ');
  return static_cast<int>(
      std::lround(QFontMetricsF(font).horizontalAdvance(blanks)));
}

}  // namespace

BotListBox::BotListBox(const BotList& bots, QWidget* parent)
    : QWidget(parent), list_(new QListWidget(this)) {
  const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  list_->setObjectName(QStringLiteral("lstBots"));
  list_->setAccessibleName(tr("Bots of the game: Bot, Pk3-file, Botfile"));
  list_->setFont(font);
  list_->setUniformItemSizes(true);
  for (const BotListEntry& entry : bots.entries()) {
    list_->addItem(ToQString(BotListLine(entry)));
  }
  const int frames = 2 * list_->frameWidth();
  list_->setMinimumWidth(WidthOf(kLineWidth, font) + frames +
                         list_->verticalScrollBar()->sizeHint().width());
  list_->setMinimumHeight(kMinLines * list_->fontMetrics().lineSpacing() +
                          frames);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* const headings = new QHBoxLayout;
  layout->addLayout(headings);
  layout->addWidget(list_, 1);
  AddHeadings(headings);

  connect(list_, &QListWidget::itemSelectionChanged, this, [this] {
    if (Chosen()) emit BotChosen();
  });
  connect(list_, &QListWidget::itemDoubleClicked, this, [this] {
    if (Chosen()) emit BotActivated();
  });
}

void BotListBox::AddHeadings(QLayout* row) {
  row->setSpacing(0);
  // Where a line's text begins inside the list.
  const int indent =
      list_->frameWidth() + 1 +
      list_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list_);
  row->setContentsMargins(indent, 0, 0, 0);
  for (std::size_t index = 0; index < kHeadings.size(); ++index) {
    const Heading& heading = kHeadings.at(index);
    const int end = index + 1 < kHeadings.size()
                        ? kHeadings.at(index + 1).column
                        : kLineWidth;
    auto* const label = new QLabel(QString::fromUtf8(heading.text), this);
    label->setObjectName(QString::fromUtf8(heading.name));
    label->setFont(list_->font());
    label->setMargin(0);
    label->setIndent(0);
    label->setFixedWidth(WidthOf(end, list_->font()) -
                         WidthOf(heading.column, list_->font()));
    label->setBuddy(list_);
    row->addWidget(label);
  }
  static_cast<QHBoxLayout*>(row)->addStretch();
}

std::optional<std::size_t> BotListBox::Chosen() const {
  const QList<QListWidgetItem*> chosen = list_->selectedItems();
  if (chosen.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(list_->row(chosen.front()));
}

void BotListBox::ClearChoice() {
  // The keys then begin at the first line again.
  list_->setCurrentIndex({});
  list_->clearSelection();
}

void BotListBox::SetReadOnly() {
  list_->setSelectionMode(QAbstractItemView::NoSelection);
}

}  // namespace fragsmith
