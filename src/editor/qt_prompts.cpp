#include "editor/qt_prompts.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

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

}  // namespace

QWidget* QtPrompts::TopWindow() const {
  QWidget* const modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : parent_.data();
}

void QtPrompts::Show(const Message& message) {
  QMessageBox box(IconOf(message.icon), QString::fromStdString(message.title),
                  QString::fromStdString(message.text), QMessageBox::Ok,
                  TopWindow());
  // A name may hold what looks like markup.
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtPrompts::Confirm(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text),
                  QMessageBox::Yes | QMessageBox::No, TopWindow());
  box.setTextFormat(Qt::PlainText);
  // What loses nothing is what Enter and Escape answer.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> QtPrompts::AskText(const std::string& title,
                                              const std::string& prompt) {
  bool is_accepted = false;
  const QString text = QInputDialog::getText(
      TopWindow(), QString::fromStdString(title),
      QString::fromStdString(prompt), QLineEdit::Normal, {}, &is_accepted);
  if (!is_accepted) return std::nullopt;
  return text.toStdString();
}

}  // namespace fragsmith
