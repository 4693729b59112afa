#include "editor/dialogs/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace fragsmith {
namespace {

/// As the links in the text write a chapter: "why-does-my-bot-not-appear".
QString LinkOf(const QString& heading) {
  static const QRegularExpression kOther(QStringLiteral("[^a-z0-9 -]"));
  return heading.toLower().remove(kOther).replace(u' ', u'-');
}

/// Without its pictures, which show what stands beside the manual anyway.
QString Text() {
  QFile file(QStringLiteral(":/manual/manual.md"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  static const QRegularExpression kPicture(
      QStringLiteral("^ *!\\[[^\\]]*\\]\\([^)]*\\)\\n"),
      QRegularExpression::MultilineOption);
  return QString::fromUtf8(file.readAll()).remove(kPicture);
}

}  // namespace

ManualWindow::ManualWindow(QWidget* parent)
    : QDialog(parent),
      chapters_(new QListWidget(this)),
      text_(new QTextBrowser(this)) {
  setObjectName(QStringLiteral("frmManual"));
  setWindowTitle(tr("Fragsmith manual"));
  chapters_->setAccessibleName(tr("Chapters"));
  text_->setAccessibleName(tr("Manual"));
  text_->setOpenLinks(false);
  text_->setMarkdown(Text());

  constexpr int kChapter = 2;
  const QTextDocument& document = *text_->document();
  for (QTextBlock block = document.begin(); block.isValid();
       block = block.next()) {
    if (block.blockFormat().headingLevel() == kChapter) {
      chapters_->addItem(block.text());
    }
  }
  chapters_->setFixedWidth(chapters_->sizeHintForColumn(0) +
                           4 * fontMetrics().averageCharWidth());

  auto* const row = new QHBoxLayout;
  row->addWidget(chapters_);
  row->addWidget(text_, 1);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(row, 1);
  auto* const buttons =
      new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
  column->addWidget(buttons);
  resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 40);

  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  connect(chapters_, &QListWidget::currentTextChanged, this,
          &ManualWindow::ShowChapter);
  connect(text_, &QTextBrowser::anchorClicked, this, &ManualWindow::FollowLink);
}

void ManualWindow::ShowChapter(const QString& heading) {
  show();
  raise();
  int top = 0;
  for (QTextBlock block = text_->document()->begin(); block.isValid();
       block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || block.text() != heading) {
      continue;
    }
    top = static_cast<int>(
        text_->document()->documentLayout()->blockBoundingRect(block).top());
    text_->setTextCursor(QTextCursor(block));
    const QList<QListWidgetItem*> found =
        chapters_->findItems(heading, Qt::MatchExactly);
    const QSignalBlocker blocker(chapters_);
    chapters_->setCurrentItem(found.value(0));
    break;
  }
  text_->verticalScrollBar()->setValue(top);
}

void ManualWindow::FollowLink(const QUrl& link) {
  for (int row = 0; row < chapters_->count(); ++row) {
    const QString heading = chapters_->item(row)->text();
    if (LinkOf(heading) == link.fragment()) return ShowChapter(heading);
  }
}

}  // namespace fragsmith
