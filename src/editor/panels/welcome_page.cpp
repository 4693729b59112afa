#include "editor/panels/welcome_page.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <algorithm>
#include <array>

#include "editor/toolkit/shown_path.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr int kSpace = 16;
constexpr int kMaxWidth = 1120;
constexpr std::size_t kMaxRecent = 6;

/// In the order of the kinds.
constexpr std::array<LineIcon, kBotKinds.size()> kIcons = {
    LineIcon::kWeaponSkills, LineIcon::kBehaviour, LineIcon::kWeaponPickup,
    LineIcon::kGeneral, LineIcon::kHelp};

QLabel* MakeHeading(const QString& text) {
  auto* const label = new QLabel(text);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

QLabel* MakeQuiet(const QString& text) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setForegroundRole(QPalette::PlaceholderText);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

QPushButton* MakeButton(const char* name, const QString& text) {
  auto* const button = new QPushButton(text);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(true);
  return button;
}

/// Of a bot in the list, beside its index.
constexpr int kNameRole = Qt::UserRole + 1;
constexpr int kPackageRole = Qt::UserRole + 2;

/// A bot of the game: its name, and below it in the second colour its package.
class BotDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) +
           QSize(2 * kInside, 2 * kInside);
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground,
                                        painter, option.widget);
    const bool is_selected = (option.state & QStyle::State_Selected) != 0;
    const auto color = [&](QPalette::ColorRole role) {
      return option.palette.color(is_selected ? QPalette::HighlightedText
                                              : role);
    };
    const QRect inside =
        option.rect.adjusted(kInside, kInside, -kInside, -kInside);
    painter->save();
    painter->setPen(color(QPalette::Text));
    painter->drawText(inside, Qt::AlignLeft | Qt::AlignTop,
                      index.data(kNameRole).toString());
    painter->setPen(color(QPalette::PlaceholderText));
    painter->drawText(inside, Qt::AlignLeft | Qt::AlignBottom,
                      index.data(kPackageRole).toString());
    painter->restore();
  }

 private:
  static constexpr int kInside = 6;
};

/// Takes out and ends all that stands in the layout.
void Empty(QLayout& layout) {
  while (QLayoutItem* const item = layout.takeAt(0)) {
    // One of its buttons may be what asked for it.
    item->widget()->setParent(nullptr);
    item->widget()->deleteLater();
    delete item;
  }
}

}  // namespace

WelcomePage::WelcomePage(QWidget& covered)
    : QScrollArea(&covered),
      covered_(covered),
      games_(new QVBoxLayout),
      kinds_(new QGridLayout) {
  setObjectName(QStringLiteral("pagWelcome"));
  setAccessibleName(tr("Welcome"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setAutoFillBackground(true);
  auto* const content = new QWidget;
  auto* const row = new QHBoxLayout(content);
  auto* const middle = new QWidget;
  middle->setMaximumWidth(kMaxWidth);
  row->addWidget(middle, 1);
  auto* const column = new QVBoxLayout(middle);
  column->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
  column->setSpacing(kSpace);
  MakeHead(*column);
  MakeKinds(*column);
  MakeBots(*column);
  column->addStretch(1);
  setWidget(content);
  covered.installEventFilter(this);
  hide();

  auto* const leave = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  leave->setContext(Qt::WidgetWithChildrenShortcut);
  connect(leave, &QShortcut::activated, this, &WelcomePage::Close);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*old*/, const QWidget* now) {
            if (now != nullptr && isAncestorOf(now)) {
              focused_ = now->objectName();
            }
            if (now != nullptr && covered_.isEnabled() &&
                covered_.isAncestorOf(now) && !isAncestorOf(now)) {
              Close();
            }
          });
}

void WelcomePage::MakeHead(QVBoxLayout& column) {
  auto* const row = new QHBoxLayout;
  row->addWidget(MakeHeading(tr("Make a bot of your own")), 1);
  QPushButton* const close = MakeButton("cmdWelcomeClose", tr("Go to the bot"));
  close->setToolTip(
      tr("Shows the pages of the bot (Esc). This page is under Help."));
  connect(close, &QPushButton::clicked, this, &WelcomePage::Close);
  row->addWidget(close);
  column.addLayout(row);
  games_->setSpacing(8);
  column.addLayout(games_);
}

void WelcomePage::MakeKinds(QVBoxLayout& column) {
  kinds_->setSpacing(kSpace);
  for (std::size_t at = 0; at < kBotKinds.size(); ++at) {
    const BotKind kind = kBotKinds.at(at);
    const BotKindText& text = TextOf(kind);
    auto* const card = new CardButton(
        kIcons.at(at), QString::fromStdString(Localized(text.caption)),
        QString::fromStdString(Localized(text.about)));
    card->setObjectName(QStringLiteral("cmdKind_") +
                        QString::fromUtf8(text.key));
    connect(card, &QAbstractButton::clicked, this,
            [this, kind] { emit KindChosen(kind); });
    kind_buttons_.push_back(card);
  }
  PlaceKinds();
  column.addLayout(kinds_);
}

void WelcomePage::MakeBots(QVBoxLayout& column) {
  recent_part_ = new QWidget;
  auto* const last = new QVBoxLayout(recent_part_);
  last->setContentsMargins(0, 0, 0, 0);
  last->addWidget(MakeHeading(tr("Or go on with a recent one")));
  recent_ = new QVBoxLayout;
  recent_->setSpacing(0);
  last->addLayout(recent_);
  column.addWidget(recent_part_);

  bots_part_ = new QWidget;
  auto* const part = new QVBoxLayout(bots_part_);
  part->setContentsMargins(0, 0, 0, 0);
  auto* const row = new QHBoxLayout;
  row->addWidget(MakeHeading(tr("Or change one of the game's")), 1);
  filter_ = new QLineEdit;
  filter_->setObjectName(QStringLiteral("txtWelcomeFilter"));
  filter_->setClearButtonEnabled(true);
  filter_->setMinimumWidth(24 * filter_->fontMetrics().averageCharWidth());
  connect(filter_, &QLineEdit::textChanged, this, &WelcomePage::Filter);
  row->addWidget(filter_);
  part->addLayout(row);
  bots_ = new QListWidget;
  bots_->setObjectName(QStringLiteral("lstWelcomeBots"));
  bots_->setAccessibleName(tr("Bots of the game"));
  bots_->setItemDelegate(new BotDelegate(bots_));
  bots_->setFlow(QListView::LeftToRight);
  bots_->setWrapping(true);
  bots_->setResizeMode(QListView::Adjust);
  bots_->setUniformItemSizes(true);
  bots_->setMinimumHeight(8 * bots_->fontMetrics().lineSpacing());
  const auto choose = [this](const QListWidgetItem* item) {
    if (item == nullptr) return;
    emit BotChosen(item->data(Qt::UserRole).value<std::size_t>());
  };
  connect(bots_, &QListWidget::itemClicked, this, choose);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* const shortcut = new QShortcut(QKeySequence(key), bots_);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this,
            [this, choose] { choose(bots_->currentItem()); });
  }
  part->addWidget(bots_);
  column.addWidget(bots_part_);
  bots_part_->hide();
  recent_part_->hide();
}

QWidget* WelcomePage::MakeGame(const Game& game) {
  auto* const card = new QFrame;
  card->setFrameShape(QFrame::StyledPanel);
  card->setAutoFillBackground(true);
  card->setBackgroundRole(QPalette::Base);
  auto* const row = new QHBoxLayout(card);
  auto* const texts = new QVBoxLayout;
  const QString folder = ShownPath(game.folder);
  texts->addWidget(
      MakeHeading(game.is_set ? game.name : tr("%1 found").arg(game.name)));
  QLabel* const about =
      MakeQuiet(game.about.isEmpty() ? folder : folder + u'\n' + game.about);
  about->setToolTip(folder);
  texts->addWidget(about);
  row->addLayout(texts, 1);
  if (game.is_set) {
    QPushButton* const scan = MakeButton(
        "cmdWelcomeScan", game.is_scanned ? tr("Scan again") : tr("Scan"));
    scan->setToolTip(
        tr("Looks through the game's packages for models, skins "
           "and bots"));
    connect(scan, &QPushButton::clicked, this, &WelcomePage::ScanWanted);
    row->addWidget(scan);
  } else {
    QPushButton* const use = MakeButton("cmdUseGame", tr("Use this game"));
    use->setToolTip(
        tr("Sets the game's folder and looks through its packages "
           "for models, skins and bots"));
    use->setAccessibleDescription(folder);
    connect(use, &QPushButton::clicked, this,
            [this, chosen = game.folder] { emit GameChosen(chosen); });
    row->addWidget(use);
  }
  return card;
}

void WelcomePage::ShowGames(const std::vector<Game>& games) {
  if (games == shown_) return;
  shown_ = games;
  Renew([this, &games] { FillGames(games); });
}

void WelcomePage::Renew(const std::function<void()>& make) {
  // The focus would leave the page with the button that has it.
  const QWidget* const focus = window()->focusWidget();
  const bool had_focus = focus != nullptr && isAncestorOf(focus);
  const QString name = focused_;
  if (had_focus) kind_buttons_.front()->setFocus(Qt::OtherFocusReason);
  make();
  focused_ = name;
  if (had_focus) FocusAgain();
}

void WelcomePage::FillGames(const std::vector<Game>& games) {
  Empty(*games_);
  const auto add = [this](QWidget* part) {
    games_->addWidget(part);
    // At once, so that it can take the focus.
    part->show();
  };
  for (const Game& game : games) add(MakeGame(game));
  const bool is_set = std::ranges::any_of(games, &Game::is_set);
  auto* const foot = new QWidget;
  auto* const row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(
      MakeQuiet(is_set          ? QString()
                : games.empty() ? tr("No game was found. Bots can be made "
                                     "without one; with it there are its "
                                     "models and its lines.")
                                : tr("With its folder set there are the "
                                     "game's models, bots and lines.")),
      1);
  QPushButton* const other =
      MakeButton("cmdOtherFolder", tr("Another folder..."));
  connect(other, &QPushButton::clicked, this, &WelcomePage::OtherFolderWanted);
  row->addWidget(other);
  add(foot);
}

void WelcomePage::ShowBots(const std::vector<ListedBot>& bots) {
  bots_->clear();
  for (const ListedBot& bot : bots) {
    auto* const item = new QListWidgetItem(bot.name + u'\n' + bot.package);
    item->setData(Qt::UserRole, QVariant::fromValue(bot.index));
    item->setData(kNameRole, bot.name);
    item->setData(kPackageRole, bot.package);
    item->setData(Qt::AccessibleTextRole,
                  tr("%1, package %2").arg(bot.name, bot.package));
    bots_->addItem(item);
  }
  filter_->setPlaceholderText(tr("Search %1 bots").arg(bots.size()));
  filter_->setAccessibleName(filter_->placeholderText());
  bots_part_->setVisible(!bots.empty());
}

void WelcomePage::Filter(const QString& text) {
  for (int row = 0; row < bots_->count(); ++row) {
    QListWidgetItem* const item = bots_->item(row);
    item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
  }
}

void WelcomePage::ShowRecent(const std::vector<RecentBot>& bots) {
  Renew([this, &bots] { FillRecent(bots); });
}

void WelcomePage::FillRecent(const std::vector<RecentBot>& bots) {
  Empty(*recent_);
  for (const RecentBot& bot : bots) {
    if (recent_->count() == static_cast<int>(kMaxRecent)) break;
    QPushButton* const button = MakeButton(
        "cmdRecent", MenuText(bot).replace(u'&', QLatin1String("&&")));
    button->setFlat(true);
    button->setStyleSheet(QStringLiteral("text-align: left; padding: 4px"));
    connect(button, &QPushButton::clicked, this,
            [this, bot] { emit RecentChosen(bot); });
    recent_->addWidget(button);
  }
  recent_part_->setVisible(!bots.empty());
}

void WelcomePage::Open() {
  setGeometry(covered_.rect());
  raise();
  show();
  focused_.clear();
  FocusAgain();
  emit Opened(true);
}

void WelcomePage::FocusAgain() {
  const auto find = [this](const QString& name) {
    return name.isEmpty() ? nullptr : findChild<QWidget*>(name);
  };
  QWidget* first = find(focused_);
  if (first == nullptr) first = find(QStringLiteral("cmdUseGame"));
  if (first == nullptr) first = kind_buttons_.front();
  first->setFocus(Qt::OtherFocusReason);
}

void WelcomePage::Close() {
  if (isHidden()) return;
  hide();
  emit Opened(false);
}

void WelcomePage::PlaceKinds() {
  constexpr int kMinWidthOfAll = 900;
  constexpr int kColumnsOfFew = 3;
  const int columns = width() < kMinWidthOfAll
                          ? kColumnsOfFew
                          : static_cast<int>(kind_buttons_.size());
  int cell = 0;
  for (CardButton* const card : kind_buttons_) {
    kinds_->addWidget(card, cell / columns, cell % columns);
    ++cell;
  }
}

void WelcomePage::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  PlaceKinds();
}

bool WelcomePage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &covered_ && event->type() == QEvent::Resize) {
    setGeometry(covered_.rect());
  } else if (watched == &covered_ && event->type() == QEvent::EnabledChange &&
             isVisible()) {
    // A scan takes the focus from the window for its time.
    FocusAgain();
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace fragsmith
