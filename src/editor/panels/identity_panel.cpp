#include "editor/panels/identity_panel.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "chat/vocabulary.h"
#include "editor/controls/captioned_field.h"
#include "editor/toolkit/code_page_validator.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/undo_keys.h"
#include "editor/toolkit/wheel_guard.h"
#include "game/limits.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "support/no_prompts.h"

namespace fragsmith {
namespace {

struct Gender {
  const char* caption;
  const char* value;
};
constexpr std::array<Gender, 3> kGenders = {
    {{"&Male", "male"}, {"Female", "female"}, {"It", "it"}}};

// The last colour is the first one again: so the list is known to players.
constexpr std::array<const char*, 9> kRailColors = {
    "None", "White",   "Blue",   "Green", "Cyan",
    "Red",  "Magenta", "Yellow", "White"};

constexpr std::array<const char*, kFunNameColors.size()> kFunColorNames = {
    QT_TRANSLATE_NOOP("IdentityPanel", "Black"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Red"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Green"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Yellow"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Blue"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Cyan"),
    QT_TRANSLATE_NOOP("IdentityPanel", "Magenta"),
    QT_TRANSLATE_NOOP("IdentityPanel", "White")};

constexpr int kBetween = 16;

QIcon ColorIcon(QRgb color, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(QColor::fromRgb(color));
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, size - 1, size - 1);
  return pixmap;
}

/// What is put into the box next can be taken back by itself: a box parts its
/// steps where the cursor moves.
void BeginUndoStep(QLineEdit& box) {
  const int position = box.cursorPosition();
  box.setCursorPosition(position == 0 ? 1 : 0);
  box.setCursorPosition(position);
}

}  // namespace

IdentityPanel::IdentityPanel(CurrentBot& current, Prompts& prompts,
                             QWidget* parent)
    : QWidget(parent), current_(current), prompts_(prompts) {
  // Made in the order of the Tab key.
  QWidget* const name = NameField();
  QWidget* const fun_name = FunNameField();
  QWidget* const preview = PreviewField();
  QWidget* const gender = GenderField();
  auto* const folded = new QWidget(this);
  QWidget* const more = MoreField(folded);
  auto* const row = new QHBoxLayout(folded);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kBetween);
  row->addWidget(VersionField());
  row->addWidget(RailField(), 1);
  row->addWidget(ArenaLordField());
  row->addWidget(CommentField(), 3);

  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kBetween);
  grid->setVerticalSpacing(4);
  grid->addWidget(preview, 0, 0, 2, 1);
  grid->addWidget(name, 0, 1);
  grid->addWidget(fun_name, 1, 1);
  grid->addWidget(gender, 0, 2);
  grid->addWidget(more, 1, 2, Qt::AlignLeft | Qt::AlignBottom);
  grid->addWidget(folded, 2, 0, 1, 3);
  grid->setColumnStretch(0, 4);
  grid->setColumnStretch(1, 4);
}

QWidget* IdentityPanel::MoreField(QWidget* folded) {
  more_ = new QToolButton(this);
  more_->setObjectName(QStringLiteral("cmdMore"));
  more_->setText(tr("More"));
  more_->setToolTip(
      tr("Version, railgun color, arenalord and comment: the game reads none "
         "of them."));
  more_->setCheckable(true);
  more_->setFocusPolicy(Qt::TabFocus);
  more_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  more_->setArrowType(Qt::RightArrow);
  folded->hide();
  connect(more_, &QToolButton::toggled, this, [this, folded](bool is_on) {
    more_->setArrowType(is_on ? Qt::DownArrow : Qt::RightArrow);
    folded->setVisible(is_on);
  });
  return more_;
}

QWidget* IdentityPanel::ArenaLordField() {
  arena_lord_ = new QCheckBox(QStringLiteral("Arenalo&rd"), this);
  arena_lord_->setObjectName(QStringLiteral("chkArenalord"));
  arena_lord_->setToolTip(
      tr("Written into the description file. The game itself does "
         "not read it."));
  auto* const field = new CaptionedField({}, nullptr, this);
  field->AddControl(arena_lord_);
  connect(arena_lord_, &QCheckBox::toggled, this, [this](bool is_on) {
    if (!current_.is_filling()) {
      current_.SetParameter(kArenaLordField, is_on ? 1.0 : 0.0);
    }
  });
  return field;
}

QLineEdit* IdentityPanel::AddBox(ParameterId field) {
  auto* const box = new QLineEdit(this);
  box->setObjectName(QStringLiteral("txtBotPara_%1").arg(field.index()));
  box->setAccessibleName(QString::fromUtf8(ParameterName(field)));
  box->setValidator(new CodePageValidator(box));
  box->installEventFilter(this);
  LeaveUndoToWindow(*box, UndoOfBox::kWhileModified);
  connect(box, &QLineEdit::inputRejected, this, [this] {
    emit StatusText(CodePageValidator::tr(kRefusedCharacter));
  });
  // The box is stored when it is left; that it differs counts at once.
  connect(box, &QLineEdit::textEdited, this,
          [this] { current_.SetChanged(true); });
  connect(box, &QLineEdit::textEdited, this, &IdentityPanel::Typed);
  boxes_.emplace(field, box);
  return box;
}

QWidget* IdentityPanel::NameField() {
  QLineEdit* const box = AddBox(kNameField);
  box->setToolTip(tr("What the game's menus and addbot call the bot. No "
                     "blanks; up to %1 letters show in the skirmish menu.")
                      .arg(limits::kMaxNameInSkirmish));
  auto* const field = new CaptionedField(QStringLiteral("&Name"), box, this);
  field->AddControl(box);
  return field;
}

QWidget* IdentityPanel::FunNameField() {
  QLineEdit* const box = AddBox(kFunNameField);
  box->setToolTip(tr("The name that players see, with colour codes such as "
                     "^1. The game cuts it at %1 characters.")
                      .arg(limits::kMaxPlayerName));
  auto* const field = new CaptionedField(QStringLiteral("F&unname"), box, this);
  field->AddControl(box);
  return field;
}

QWidget* IdentityPanel::PreviewField() {
  auto* const field = new QWidget(this);
  auto* const row = new QHBoxLayout;
  row->setSpacing(2);
  const int size = fontMetrics().ascent();
  for (std::size_t color = 0; color < kFunNameColors.size(); ++color) {
    auto* const button = new QToolButton(field);
    button->setObjectName(QStringLiteral("cmdColor_%1").arg(color));
    button->setIcon(ColorIcon(kFunNameColors.at(color), size));
    button->setIconSize(QSize(size, size));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    const QString name = tr(kFunColorNames.at(color));
    button->setAccessibleName(tr("Colour %1").arg(name));
    button->setToolTip(QStringLiteral("%1 (^%2)").arg(name).arg(color));
    connect(button, &QToolButton::clicked, this,
            [this, color] { InsertColor(static_cast<int>(color)); });
    row->addWidget(button);
  }
  row->addStretch(1);
  preview_ = new FunNamePreview(field);
  preview_->setObjectName(QStringLiteral("picFunName"));
  preview_->StandOnGameGround();
  auto* const column = new QVBoxLayout(field);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(preview_, 1);
  column->addLayout(row);
  // Without a fun name the players see the name.
  const auto draw = [this] {
    const QString fun_name = boxes_.at(kFunNameField)->text();
    preview_->DrawFunName(fun_name.isEmpty() ? boxes_.at(kNameField)->text()
                                             : fun_name);
  };
  connect(boxes_.at(kFunNameField), &QLineEdit::textChanged, preview_, draw);
  connect(boxes_.at(kNameField), &QLineEdit::textChanged, preview_, draw);
  return field;
}

QWidget* IdentityPanel::GenderField() {
  auto* const field =
      new CaptionedField(QStringLiteral("Gender"), nullptr, this);
  auto* const row = new QHBoxLayout;
  genders_ = new QButtonGroup(field);
  for (std::size_t index = 0; index < kGenders.size(); ++index) {
    auto* const button =
        new QRadioButton(QLatin1String(kGenders.at(index).caption), field);
    button->setObjectName(QStringLiteral("opGender_%1").arg(index));
    genders_->addButton(button, static_cast<int>(index));
    row->addWidget(button);
  }
  row->addStretch(1);
  field->AddControls(row);
  // Assistive tools switch a button without a click.
  connect(
      genders_, &QButtonGroup::idToggled, this, [this](int index, bool is_on) {
        if (!is_on || current_.is_filling()) return;
        current_.SetParameter(
            kGenderField,
            std::string(kGenders.at(static_cast<std::size_t>(index)).value));
      });
  return field;
}

QWidget* IdentityPanel::RailField() {
  rail_ = new QComboBox(this);
  IgnoreWheelWithoutFocus(*rail_);
  rail_->setObjectName(QStringLiteral("cmbRail"));
  rail_->setAccessibleName(QString::fromUtf8(ParameterName(kRailColorField)));
  rail_->setToolTip(
      tr("Written as \"color\". The game reads color1 instead and "
         "keeps its red trail."));
  for (const char* const color : kRailColors) {
    rail_->addItem(QLatin1String(color));
  }
  auto* const field =
      new CaptionedField(QStringLiteral("Rail&gun color"), rail_, this);
  field->AddControl(rail_);
  connect(rail_, &QComboBox::activated, this, [this](int index) {
    const Value value = index == 0 ? Value(std::string(kNoRailColor))
                                   : Value(static_cast<double>(index - 1));
    current_.SetParameter(kRailColorField, value);
  });
  return field;
}

QWidget* IdentityPanel::VersionField() {
  QLineEdit* const major = AddBox(kVersionMajorField);
  QLineEdit* const minor = AddBox(kVersionMinorField);
  auto* const field =
      new CaptionedField(QStringLiteral("&Version"), major, this);
  auto* const row = new QHBoxLayout;
  for (QLineEdit* const box : {major, minor}) {
    if (box == minor) row->addWidget(new QLabel(QStringLiteral("."), field));
    box->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * 7);
    row->addWidget(box);
  }
  row->setSpacing(4);
  row->addStretch(1);
  field->AddControls(row);
  return field;
}

QWidget* IdentityPanel::CommentField() {
  QLineEdit* const box = AddBox(kCommentField);
  auto* const field = new CaptionedField(QStringLiteral("&Comment"), box, this);
  field->AddControl(box);
  return field;
}

void IdentityPanel::InsertColor(int color) {
  QLineEdit* const box = boxes_.at(kFunNameField);
  // A code cannot be the first thing typed.
  if (box->text().isEmpty()) return;
  box->setFocus();
  box->deselect();
  BeginUndoStep(*box);
  box->insert(QStringLiteral("^%1").arg(color));
  BeginUndoStep(*box);
}

bool IdentityPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut && !is_checking_) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    const bool stays_in_window = reason != Qt::ActiveWindowFocusReason &&
                                 reason != Qt::PopupFocusReason &&
                                 reason != Qt::MenuBarFocusReason;
    for (const auto& [field, box] : boxes_) {
      if (box != watched || !stays_in_window || !box->isModified()) continue;
      // Not within the change of focus itself, which a box would disturb.
      QTimer::singleShot(0, this, [this, field = field] { LeaveBox(field); });
    }
  }
  return QWidget::eventFilter(watched, event);
}

bool IdentityPanel::LeaveBox(ParameterId field) {
  QLineEdit* const box = boxes_.at(field);
  if (!box->isModified() || is_checking_) return true;
  is_checking_ = true;
  Bot checked = current_.bot();
  const bool is_good =
      CheckBox(field, *ToGameText(box->text()), checked, prompts_);
  if (is_good) {
    current_.SetParameter(field, checked.Parameter(field));
    ShowStored(field);
  } else {
    box->setFocus();
    box->selectAll();
  }
  is_checking_ = false;
  return is_good;
}

void IdentityPanel::ShowStored(ParameterId field) {
  QLineEdit* const box = boxes_.at(field);
  const QString stored = ToQString(BoxTextsOf(current_.bot()).at(field));
  // Also where it is the same: the steps of the box end here, those of the bot
  // go on.
  const int position = box->cursorPosition();
  box->setText(stored);
  box->setCursorPosition(position);
  box->setModified(false);
}

bool IdentityPanel::StoreTyping() {
  return std::all_of(boxes_.begin(), boxes_.end(),
                     [this](const auto& box) { return LeaveBox(box.first); });
}

bool IdentityPanel::HasTyping() const {
  return std::any_of(boxes_.begin(), boxes_.end(),
                     [](const auto& box) { return box.second->isModified(); });
}

void IdentityPanel::UndoTyping() {
  for (const auto& [field, box] : boxes_) {
    if (!box->isModified()) continue;
    if (box->isUndoAvailable()) {
      box->undo();
    } else {
      ShowStored(field);
    }
  }
}

void IdentityPanel::SelectName() {
  boxes_.at(kNameField)->setFocus();
  boxes_.at(kNameField)->selectAll();
}

Bot IdentityPanel::WithTyping() const {
  Bot bot = current_.bot();
  NoPrompts silent;
  for (const auto& [field, box] : boxes_) {
    if (box->isModified()) {
      // A text that is refused stays out of the copy.
      (void)CheckBox(field, *ToGameText(box->text()), bot, silent);
    }
  }
  return bot;
}

std::optional<ParameterId> IdentityPanel::CheckAllIn() {
  is_checking_ = true;
  IdentityTexts texts = BoxTextsOf(current_.bot());
  for (const auto& [field, box] : boxes_) {
    if (box->isModified())
      texts.insert_or_assign(field, *ToGameText(box->text()));
  }
  Bot checked = current_.bot();
  const std::optional<ParameterId> refused =
      fragsmith::CheckAllIn(texts, checked, prompts_);
  if (refused) {
    boxes_.at(*refused)->setFocus();
    boxes_.at(*refused)->selectAll();
  } else {
    for (const auto& [field, box] : boxes_) {
      // A box that was not touched stores nothing; only the fun name may
      // need its quotes.
      if (box->isModified()) {
        current_.SetParameter(field, checked.Parameter(field));
        ShowStored(field);
      } else if (field == kFunNameField) {
        PutQuotesOn(checked.Parameter(field));
      }
    }
  }
  is_checking_ = false;
  return refused;
}

void IdentityPanel::PutQuotesOn(const Value& fun_name) {
  if (current_.bot().Parameter(kFunNameField) == fun_name) return;
  const bool was_changed = current_.is_changed();
  {
    // Needed in the file, and nothing that the user did.
    const CurrentBot::Filling filling(current_);
    current_.SetParameter(kFunNameField, fun_name);
  }
  if (!was_changed) current_.SetChanged(false);
}

void IdentityPanel::ShowBot() {
  const CurrentBot::Filling filling(current_);
  const Bot& bot = current_.bot();
  for (const auto& [field, text] : BoxTextsOf(bot)) {
    boxes_.at(field)->setText(ToQString(text));
    boxes_.at(field)->setModified(false);
    boxes_.at(field)->setCursorPosition(0);
  }
  // A group without a checked button needs to be told to be no group.
  genders_->setExclusive(false);
  for (QAbstractButton* const button : genders_->buttons()) {
    const auto index = static_cast<std::size_t>(genders_->id(button));
    button->setChecked(bot.Text(kGenderField) == kGenders.at(index).value);
  }
  genders_->setExclusive(true);

  int index = -1;
  if (bot.Text(kRailColorField) == kNoRailColor) {
    index = 0;
  } else if (const auto color = ToNumber(bot.Parameter(kRailColorField))) {
    const double entry = *color + 1;
    if (entry >= 1 && entry < static_cast<double>(kRailColors.size()) &&
        entry == static_cast<int>(entry)) {
      index = static_cast<int>(entry);
    }
  }
  rail_->setCurrentIndex(index);
  arena_lord_->setChecked(ToNumber(bot.Parameter(kArenaLordField)) != 0.0);
}

}  // namespace fragsmith
