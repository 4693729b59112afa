#include "editor/dialogs/dialog_parts.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>

#include "editor/toolkit/code_page_validator.h"

namespace fragsmith {
namespace {

void NameButton(QPushButton* button, const QString& text, const QString& name) {
  if (button == nullptr) return;
  // The platform would put its own words and mnemonics here.
  button->setText(text);
  button->setObjectName(name);
}

/// Hands the keys that move in the list from the box to it.
class ListKeys : public QObject {
 public:
  ListKeys(QLineEdit* box, QAbstractItemView* list)
      : QObject(box), list_(list) {
    box->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
          key == Qt::Key_PageDown) {
        QCoreApplication::sendEvent(list_, event);
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QAbstractItemView* list_;
};

}  // namespace

QDialogButtonBox* MakeButtons(QDialogButtonBox::StandardButtons buttons,
                              QDialog* dialog, const QString& cancel) {
  auto* const box = new QDialogButtonBox(buttons, dialog);
  QPushButton* const ok = box->button(QDialogButtonBox::Ok);
  NameButton(ok, QStringLiteral("OK"), QStringLiteral("cmdOK"));
  NameButton(box->button(QDialogButtonBox::Cancel), cancel,
             QStringLiteral("cmdCancel"));
  if (ok != nullptr) ok->setDefault(true);
  QObject::connect(box, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(box, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return box;
}

HintLine::HintLine(int lines, QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblHint"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setMinimumHeight(lines * fontMetrics().lineSpacing());
}

void HintLine::Say(const QString& hint) {
  if (hint == text()) return;
  setText(hint);
  if (hint.isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void LetBoxLeadList(QLineEdit* box, QAbstractItemView* list) {
  new ListKeys(box, list);
}

void SetUpRows(QTreeWidget& list, const char* name,
               const QString& accessible_name, const QStringList& headings) {
  list.setObjectName(QLatin1String(name));
  list.setAccessibleName(accessible_name);
  list.setHeaderLabels(headings);
  list.setRootIsDecorated(false);
  list.setUniformRowHeights(true);
  list.setAllColumnsShowFocus(true);
  list.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void RefuseForeignCharacters(QLineEdit* box, HintLine* hint) {
  box->setValidator(new CodePageValidator(box));
  QObject::connect(box, &QLineEdit::inputRejected, hint, [hint] {
    hint->Say(CodePageValidator::tr(kRefusedCharacter));
  });
}

}  // namespace fragsmith
