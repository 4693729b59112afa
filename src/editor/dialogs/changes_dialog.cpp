#include "editor/dialogs/changes_dialog.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "editor/dialogs/dialog_parts.h"

namespace fragsmith {
namespace {

/// Colours lines that come and go. Their signs say the same, so that nobody
/// needs the colours.
class DiffColours : public QSyntaxHighlighter {
 public:
  explicit DiffColours(QPlainTextEdit* view)
      : QSyntaxHighlighter(view->document()),
        is_dark_(view->palette().color(QPalette::Base).lightness() < 128) {}

 protected:
  void highlightBlock(const QString& line) override {
    QTextCharFormat format;
    // A line that goes may begin with "-- ": a heading has its twin beside it.
    const auto begins = [](const QTextBlock& block, QLatin1String sign) {
      return block.text().startsWith(sign);
    };
    constexpr QLatin1String kOld("--- ");
    constexpr QLatin1String kNew("+++ ");
    if ((line.startsWith(kOld) && begins(currentBlock().next(), kNew)) ||
        (line.startsWith(kNew) && begins(currentBlock().previous(), kOld))) {
      format.setFontWeight(QFont::Bold);
    } else if (line.startsWith(QLatin1Char('+'))) {
      format.setForeground(is_dark_ ? QColor(120, 220, 120)
                                    : QColor(0, 100, 0));
    } else if (line.startsWith(QLatin1Char('-'))) {
      format.setForeground(is_dark_ ? QColor(255, 140, 140)
                                    : QColor(160, 0, 0));
    } else if (line.startsWith(QLatin1String("@@"))) {
      format.setFontItalic(true);
    }
    setFormat(0, static_cast<int>(line.size()), format);
  }

 private:
  bool is_dark_;
};

}  // namespace

frmChanges::frmChanges(const QString& diff, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmChanges"));
  setWindowTitle(tr("Show changes"));
  auto* const layout = new QVBoxLayout(this);
  auto* const caption = new QLabel(
      tr("&What Save again changes in the files of this bot:"), this);
  layout->addWidget(caption);
  auto* const view = new QPlainTextEdit(this);
  view->setObjectName(QStringLiteral("txtChanges"));
  view->setAccessibleName(tr("Changes in the files"));
  view->setReadOnly(true);
  // Read only, it is still to be walked through with the keyboard.
  view->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                Qt::TextSelectableByKeyboard);
  view->setLineWrapMode(QPlainTextEdit::NoWrap);
  view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  view->setPlainText(diff.isEmpty() ? tr("Nothing: the files say all of it.")
                                    : diff);
  new DiffColours(view);
  caption->setBuddy(view);
  layout->addWidget(view);
  layout->addWidget(MakeButtons(QDialogButtonBox::Ok, this));
  const int line = fontMetrics().lineSpacing();
  resize(50 * line, 30 * line);
}

}  // namespace fragsmith
