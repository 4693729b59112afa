#include "editor/pages/variable_completion.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStandardItem>

#include "editor/pages/remark_delegate.h"

namespace fragsmith {
namespace {

constexpr int kTypedRole = Qt::UserRole + 2;

/// Where the variable begins that is being typed; -1 for none. What begins
/// with two braces is a ready-made line.
qsizetype BeginOfVariable(const QLineEdit& box) {
  const QString text = box.text().left(box.cursorPosition());
  const qsizetype begin = text.lastIndexOf(u'{');
  const bool is_open = begin >= 0 && text.indexOf(u'}', begin) < 0 &&
                       (begin == 0 || text[begin - 1] != u'{');
  return is_open ? begin : -1;
}

}  // namespace

VariableCompletion::VariableCompletion(QLineEdit& box)
    : QObject(&box),
      box_(box),
      variables_(new QStandardItemModel(this)),
      completer_(new QCompleter(variables_, this)) {
  completer_->setWidget(&box);
  completer_->setCompletionRole(kTypedRole);
  completer_->setCaseSensitivity(Qt::CaseInsensitive);
  constexpr int kRows = 10;
  completer_->setMaxVisibleItems(kRows);
  QAbstractItemView* const list = completer_->popup();
  list->setObjectName(QStringLiteral("lstVariables"));
  list->setAccessibleName(tr("Variables"));
  list->setItemDelegate(
      new RemarkDelegate(QStringLiteral("{RANDOMCONSELOR}"), list));
  // Behind the completer's own, so that it is asked first.
  list->installEventFilter(this);
  connect(&box, &QLineEdit::textEdited, this, &VariableCompletion::Follow);
  connect(&box, &QLineEdit::cursorPositionChanged, this, [this, list] {
    if (list->isVisible() && BeginOfVariable(box_) < 0) list->hide();
  });
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated),
          this, &VariableCompletion::Take);
}

void VariableCompletion::Offer(const std::vector<ChatVariable>& variables) {
  completer_->popup()->hide();
  variables_->clear();
  for (const ChatVariable& variable : variables) {
    auto* const item = new QStandardItem(variable.variable);
    item->setData(variable.meaning, kRemarkRole);
    item->setData(variable.meaning, Qt::AccessibleDescriptionRole);
    // One of the words has no braces.
    item->setData(variable.variable.startsWith(u'{') ? variable.variable
                                                     : u'{' + variable.variable,
                  kTypedRole);
    item->setEnabled(variable.is_of_use);
    variables_->appendRow(item);
  }
}

void VariableCompletion::Follow() {
  QAbstractItemView* const list = completer_->popup();
  const qsizetype begin = BeginOfVariable(box_);
  const QString typed =
      begin < 0 ? QString()
                : box_.text().mid(begin, box_.cursorPosition() - begin);
  // Who went on without it is not asked again within the same one.
  if (!list->isVisible() && typed != u"{") return;
  completer_->setCompletionPrefix(typed);
  if (typed.isEmpty() || completer_->completionCount() == 0) {
    list->hide();
    return;
  }
  QRect place = box_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  constexpr int kLetters = 64;
  place.setWidth(box_.fontMetrics().averageCharWidth() * kLetters);
  completer_->complete(place);
  const QAbstractItemModel& rows = *list->model();
  QModelIndex first;
  for (int row = 0; row < rows.rowCount() && !first.isValid(); ++row) {
    const QModelIndex index = rows.index(row, 0);
    if ((index.flags() & Qt::ItemIsEnabled) != 0) first = index;
  }
  list->setCurrentIndex(first);
}

void VariableCompletion::Take(const QModelIndex& index) {
  const qsizetype begin = BeginOfVariable(box_);
  completer_->popup()->hide();
  if (begin < 0 || (index.flags() & Qt::ItemIsEnabled) == 0) return;
  emit Taken(static_cast<int>(begin), index.data().toString());
}

bool VariableCompletion::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return QObject::eventFilter(watched, event);
  }
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
      Take(completer_->popup()->currentIndex());
      return true;
    case Qt::Key_Escape:
      completer_->popup()->hide();
      return true;
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace fragsmith
