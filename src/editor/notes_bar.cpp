#include "editor/notes_bar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace fragsmith {
namespace {

QPushButton* AddButton(const QString& text, const QString& name,
                       QHBoxLayout* row, QWidget* parent) {
  auto* const button = new QPushButton(text, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  row->addWidget(button);
  return button;
}

}  // namespace

NotesBar::NotesBar(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("barNotes"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(9, 4, 4, 4);
  auto* const row = new QHBoxLayout;
  column->addLayout(row);
  text_ = new QLabel(this);
  text_->setObjectName(QStringLiteral("lblNotes"));
  text_->setForegroundRole(QPalette::ToolTipText);
  text_->setTextFormat(Qt::PlainText);
  row->addWidget(text_, 1);
  list_button_ = AddButton(QStringLiteral("Show list"),
                           QStringLiteral("cmdNotesList"), row, this);
  list_button_->setCheckable(true);
  as_game_button_ =
      AddButton(QStringLiteral("Take the values as the game reads them"),
                QStringLiteral("cmdAsGame"), row, this);
  draft_button_ = AddButton(QStringLiteral("Restore it"),
                            QStringLiteral("cmdTakeDraft"), row, this);
  discard_button_ = AddButton(QStringLiteral("Discard it"),
                              QStringLiteral("cmdDiscardDraft"), row, this);
  close_button_ = AddButton(QStringLiteral("Close"),
                            QStringLiteral("cmdCloseNotes"), row, this);
  list_ = new QListWidget(this);
  list_->setObjectName(QStringLiteral("lstNotes"));
  list_->setAccessibleName(QStringLiteral("What was noticed in the files"));
  list_->setWordWrap(true);
  list_->setMaximumHeight(8 * fontMetrics().lineSpacing());
  column->addWidget(list_);

  connect(list_button_, &QPushButton::toggled, list_, &QWidget::setVisible);
  connect(as_game_button_, &QPushButton::clicked, this, [this] {
    as_game_button_->hide();
    emit TakeAsGame();
  });
  connect(draft_button_, &QPushButton::clicked, this, [this] {
    hide();
    emit TakeDraft();
  });
  connect(discard_button_, &QPushButton::clicked, this, [this] {
    hide();
    emit DiscardDraft();
  });
  connect(close_button_, &QPushButton::clicked, this, &QWidget::hide);
  hide();
}

void NotesBar::HideAll() {
  list_button_->setChecked(false);
  for (QWidget* const widget :
       {static_cast<QWidget*>(list_button_), static_cast<QWidget*>(list_),
        static_cast<QWidget*>(as_game_button_),
        static_cast<QWidget*>(draft_button_),
        static_cast<QWidget*>(discard_button_),
        static_cast<QWidget*>(close_button_)}) {
    widget->hide();
  }
}

void NotesBar::ShowNotes(const Notes& notes, bool has_plain_values) {
  HideAll();
  list_->clear();
  for (const Note& note : notes.list()) {
    list_->addItem(QString::fromStdString(Describe(note)));
  }
  const auto count = notes.list().size() + notes.left_out();
  text_->setText(
      count == 1
          ? QStringLiteral("One thing was noticed in the files.")
          : QStringLiteral("%1 things were noticed in the files.").arg(count));
  list_button_->show();
  as_game_button_->setVisible(has_plain_values);
  close_button_->show();
  setVisible(count > 0);
}

void NotesBar::OfferDraft(const QString& bot_name) {
  HideAll();
  text_->setText(
      QStringLiteral("The bot %1 was not saved when Fragsmith last ended.")
          .arg(bot_name));
  draft_button_->show();
  discard_button_->show();
  show();
}

}  // namespace fragsmith
