#include "editor/toolkit/qt_prompts.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

namespace fragsmith {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

/// Shows a box wide enough for its title, which says what it is about.
int Ask(QMessageBox& box) {
  // A name may hold what looks like markup.
  box.setTextFormat(Qt::PlainText);
  const QFontMetrics metrics = box.fontMetrics();
  const int width = metrics.horizontalAdvance(box.windowTitle()) +
                    16 * metrics.averageCharWidth();
  if (auto* const grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
  }
  return box.exec();
}

}  // namespace

QWidget* QtPrompts::TopWindow() const {
  QWidget* const modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : parent_.data();
}

void QtPrompts::Show(const Message& message) {
  QMessageBox box(IconOf(message.icon), QString::fromStdString(message.title),
                  QString::fromStdString(message.text), QMessageBox::Ok,
                  TopWindow());
  Ask(box);
}

bool QtPrompts::Confirm(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text),
                  QMessageBox::Yes | QMessageBox::No, TopWindow());
  // What loses nothing is what Enter and Escape answer.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return Ask(box) == QMessageBox::Yes;
}

std::size_t QtPrompts::Choose(const std::string& title, const std::string& text,
                              const std::vector<std::string>& buttons) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::NoButton,
                  TopWindow());
  std::vector<QAbstractButton*> made;
  made.reserve(buttons.size());
  for (const std::string& button : buttons) {
    made.push_back(box.addButton(
        QString::fromStdString(button),
        made.empty() ? QMessageBox::RejectRole : QMessageBox::ActionRole));
  }
  box.setDefaultButton(qobject_cast<QPushButton*>(made.front()));
  box.setEscapeButton(made.front());
  Ask(box);
  const auto pressed = std::find(made.begin(), made.end(), box.clickedButton());
  return pressed == made.end()
             ? 0
             : static_cast<std::size_t>(pressed - made.begin());
}

std::optional<std::string> QtPrompts::AskText(const std::string& title,
                                              const std::string& prompt) {
  QInputDialog box(TopWindow());
  box.setWindowTitle(QString::fromStdString(title));
  box.setLabelText(QString::fromStdString(prompt));
  // It is made only now, and as wide as for the name of a model.
  box.setInputMode(QInputDialog::TextInput);
  if (auto* const line = box.findChild<QLineEdit*>()) {
    line->setMinimumWidth(48 * line->fontMetrics().averageCharWidth());
  }
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return box.textValue().toStdString();
}

}  // namespace fragsmith
