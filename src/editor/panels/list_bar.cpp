#include "editor/panels/list_bar.h"

#include <QVBoxLayout>
#include <utility>
#include <vector>

namespace fragsmith {

ListBar::ListBar(const QString& name, QWidget* parent)
    : QFrame(parent),
      row_(new QHBoxLayout),
      text_(new QLabel(this)),
      list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("bar") + name);
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(9, 4, 4, 4);
  column->addLayout(row_);
  text_->setObjectName(QStringLiteral("lbl") + name);
  text_->setForegroundRole(QPalette::ToolTipText);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  row_->addWidget(text_, 1);
  list_button_ = AddButton(
      tr("Show list"), QStringLiteral("cmd") + name + QStringLiteral("List"));
  list_button_->setCheckable(true);
  list_->setObjectName(QStringLiteral("lst") + name);
  list_->setAccessibleName(tr("What was noticed in the files"));
  list_->setWordWrap(true);
  list_->setMaximumHeight(8 * fontMetrics().lineSpacing());
  list_->hide();
  column->addWidget(list_);
  connect(list_button_, &QPushButton::toggled, list_, &QWidget::setVisible);
  hide();
}

QPushButton* ListBar::AddButton(const QString& text, const QString& name) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  row_->addWidget(button);
  return button;
}

void ListBar::Say(const QString& text, const Notes& notes) {
  text_->setText(text);
  list_button_->setChecked(false);
  list_button_->setVisible(!notes.empty());
  Fill(notes);
  show();
}

void ListBar::Fill(const Notes& notes) {
  list_->clear();
  std::vector<QString> others;
  for (const Note& note : notes.list()) {
    QString text = QString::fromStdString(Describe(note));
    if (note.kind == NoteKind::kAlsoInFile) {
      others.push_back(std::move(text));
    } else {
      list_->addItem(text);
    }
  }
  if (others.empty()) return;
  list_->addItem(tr("Also in these files"));
  QFont bold = list_->font();
  bold.setBold(true);
  list_->item(list_->count() - 1)->setFont(bold);
  for (const QString& text : others) list_->addItem(text);
}

}  // namespace fragsmith
