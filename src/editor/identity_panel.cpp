#include "editor/identity_panel.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <array>

#include "editor/captioned_field.h"
#include "editor/code_page_validator.h"
#include "editor/game_text_conversion.h"
#include "editor/undo_keys.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_checks.h"
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
    "Black", "Red", "Green", "Yellow", "Blue", "Cyan", "Magenta", "White"};

QIcon ColorIcon(QRgb color, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(QColor::fromRgb(color));
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, size - 1, size - 1);
  return pixmap;
}

}  // namespace

IdentityPanel::IdentityPanel(CurrentBot& current, Prompts& prompts,
                             QWidget* parent)
    : QWidget(parent), current_(current), prompts_(prompts) {
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(8);
  grid->addWidget(NameField(), 0, 0);
  grid->addWidget(FunNameField(), 1, 0);
  grid->addWidget(PreviewField(), 2, 0);
  grid->addWidget(GenderField(), 0, 1);
  grid->addWidget(RailField(), 1, 1);
  grid->addWidget(VersionField(), 0, 2);
  arena_lord_ = new QCheckBox(QStringLiteral("Arenalo&rd"), this);
  arena_lord_->setObjectName(QStringLiteral("chkArenalord"));
  arena_lord_->setToolTip(
      QStringLiteral("Written into the description file. The game itself does "
                     "not read it."));
  auto* const arena_lord = new CaptionedField({}, nullptr, this);
  arena_lord->AddControl(arena_lord_);
  grid->addWidget(arena_lord, 1, 2);
  grid->addWidget(CommentField(), 2, 1, 1, 2);
  grid->setColumnStretch(0, 4);
  grid->setColumnStretch(1, 3);

  connect(arena_lord_, &QCheckBox::toggled, this, [this](bool is_on) {
    if (!current_.is_filling()) {
      current_.SetParameter(kArenaLordField, is_on ? 1.0 : 0.0);
    }
  });
}

QLineEdit* IdentityPanel::AddBox(int field, const QString& accessible_name) {
  auto* const box = new QLineEdit(this);
  box->setObjectName(QStringLiteral("txtBotPara_%1").arg(field));
  box->setAccessibleName(accessible_name);
  box->setValidator(new CodePageValidator(box));
  box->installEventFilter(this);
  LeaveUndoToWindow(*box, UndoOfBox::kWhileModified);
  connect(box, &QLineEdit::inputRejected, this,
          [this] { emit StatusText(QLatin1String(kRefusedCharacter)); });
  // The box is stored when it is left; that it differs counts at once.
  connect(box, &QLineEdit::textEdited, this,
          [this] { current_.SetChanged(true); });
  connect(box, &QLineEdit::textEdited, this, &IdentityPanel::Typed);
  boxes_[field] = box;
  return box;
}

QWidget* IdentityPanel::NameField() {
  QLineEdit* const box = AddBox(kNameIndex, QStringLiteral("Name"));
  box->setToolTip(
      QStringLiteral("What the game's menus and addbot call the bot. No "
                     "blanks; up to 15 letters show in the skirmish menu."));
  auto* const field = new CaptionedField(QStringLiteral("&Name"), box, this);
  field->AddControl(box);
  return field;
}

QWidget* IdentityPanel::FunNameField() {
  QLineEdit* const box = AddBox(kFunNameField, QStringLiteral("Funname"));
  box->setToolTip(
      QStringLiteral("The name that players see, with colour codes such as "
                     "^1. The game cuts it at 35 characters."));
  auto* const field = new CaptionedField(QStringLiteral("F&unname"), box, this);
  field->AddControl(box);
  return field;
}

QWidget* IdentityPanel::PreviewField() {
  auto* const field = new CaptionedField({}, nullptr, this);
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
    const QString name = QLatin1String(kFunColorNames.at(color));
    button->setAccessibleName(QStringLiteral("Colour %1").arg(name));
    button->setToolTip(QStringLiteral("%1 (^%2)").arg(name).arg(color));
    connect(button, &QToolButton::clicked, this,
            [this, color] { InsertColor(static_cast<int>(color)); });
    row->addWidget(button);
  }
  row->addStretch(1);
  field->ReplaceCaption(row);
  preview_ = new FunNamePreview(field);
  preview_->setObjectName(QStringLiteral("picFunName"));
  field->AddControl(preview_);
  connect(boxes_.at(kFunNameField), &QLineEdit::textChanged, preview_,
          &FunNamePreview::DrawFunName);
  return field;
}

QWidget* IdentityPanel::GenderField() {
  auto* const field =
      new CaptionedField(QStringLiteral("Gender"), nullptr, this);
  auto* const row = new QHBoxLayout;
  genders_ = new QButtonGroup(field);
  for (std::size_t place = 0; place < kGenders.size(); ++place) {
    auto* const button =
        new QRadioButton(QLatin1String(kGenders.at(place).caption), field);
    button->setObjectName(QStringLiteral("opGender_%1").arg(place));
    genders_->addButton(button, static_cast<int>(place));
    row->addWidget(button);
  }
  row->addStretch(1);
  field->AddControls(row);
  connect(genders_, &QButtonGroup::idClicked, this, [this](int place) {
    current_.SetParameter(
        kGenderIndex,
        std::string(kGenders.at(static_cast<std::size_t>(place)).value));
  });
  return field;
}

QWidget* IdentityPanel::RailField() {
  rail_ = new QComboBox(this);
  rail_->setObjectName(QStringLiteral("cmbRail"));
  rail_->setAccessibleName(QStringLiteral("Railgun color"));
  rail_->setToolTip(
      QStringLiteral("Written as \"color\". The game reads color1 instead and "
                     "keeps its red trail."));
  for (const char* const color : kRailColors) {
    rail_->addItem(QLatin1String(color));
  }
  auto* const field =
      new CaptionedField(QStringLiteral("Rail&gun color"), rail_, this);
  field->AddControl(rail_);
  connect(rail_, &QComboBox::activated, this, [this](int place) {
    const Value value = place == 0 ? Value(std::string(kNoRailColor))
                                   : Value(static_cast<double>(place - 1));
    current_.SetParameter(kRailColorField, value);
  });
  return field;
}

QWidget* IdentityPanel::VersionField() {
  QLineEdit* const major =
      AddBox(kVersionMajorField, QStringLiteral("Version, major"));
  QLineEdit* const minor =
      AddBox(kVersionMinorField, QStringLiteral("Version, minor"));
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
  QLineEdit* const box = AddBox(kCommentField, QStringLiteral("Comment"));
  auto* const field = new CaptionedField(QStringLiteral("&Comment"), box, this);
  field->AddControl(box);
  return field;
}

void IdentityPanel::InsertColor(int color) {
  QLineEdit* const box = boxes_.at(kFunNameField);
  // A code cannot be the first thing typed.
  if (box->text().isEmpty()) return;
  const int place = box->cursorPosition();
  QString text = box->text();
  text.insert(place, QStringLiteral("^%1").arg(color));
  box->setText(text);
  box->setModified(true);
  current_.SetChanged(true);
  box->setFocus();
  box->setCursorPosition(place + 2);
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

bool IdentityPanel::LeaveBox(int field) {
  QLineEdit* const box = boxes_.at(field);
  if (!box->isModified() || is_checking_) return true;
  is_checking_ = true;
  Bot checked = current_.bot();
  const bool is_good =
      CheckBox(field, *ToGameText(box->text()), checked, prompts_);
  if (is_good) {
    current_.SetParameter(field, checked.Parameter(field));
    box->setModified(false);
  } else {
    box->setFocus();
    box->selectAll();
  }
  is_checking_ = false;
  return is_good;
}

bool IdentityPanel::RevertTyping() {
  const IdentityTexts texts = BoxTextsOf(current_.bot());
  bool has_reverted = false;
  for (const auto& [field, box] : boxes_) {
    if (!box->isModified()) continue;
    box->setText(ToQString(texts.at(field)));
    box->setModified(false);
    has_reverted = true;
  }
  return has_reverted;
}

Bot IdentityPanel::WithTyping() const {
  Bot bot = current_.bot();
  NoPrompts silent;
  for (const auto& [field, box] : boxes_) {
    if (box->isModified()) {
      (void)CheckBox(field, *ToGameText(box->text()), bot, silent);
    }
  }
  return bot;
}

std::optional<int> IdentityPanel::CheckAllIn() {
  is_checking_ = true;
  IdentityTexts texts = BoxTextsOf(current_.bot());
  for (const auto& [field, box] : boxes_) {
    if (box->isModified()) texts[field] = *ToGameText(box->text());
  }
  Bot checked = current_.bot();
  const std::optional<int> refused =
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
      } else if (field == kFunNameField) {
        PutQuotesOn(checked.Parameter(field));
      }
      box->setModified(false);
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
    const auto place = static_cast<std::size_t>(genders_->id(button));
    button->setChecked(bot.Text(kGenderIndex) == kGenders.at(place).value);
  }
  genders_->setExclusive(true);

  int place = -1;
  if (bot.Text(kRailColorField) == kNoRailColor) {
    place = 0;
  } else if (const auto color = ToNumber(bot.Parameter(kRailColorField))) {
    const double entry = *color + 1;
    if (entry >= 1 && entry < static_cast<double>(kRailColors.size()) &&
        entry == static_cast<int>(entry)) {
      place = static_cast<int>(entry);
    }
  }
  rail_->setCurrentIndex(place);
  arena_lord_->setChecked(ToNumber(bot.Parameter(kArenaLordField)) != 0.0);
}

}  // namespace fragsmith
