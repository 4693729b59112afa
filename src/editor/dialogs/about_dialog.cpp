#include "editor/dialogs/about_dialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

#include "editor/dialogs/dialog_parts.h"
#include "support/program_version.h"

namespace fragsmith {
namespace {

QLabel* AddLine(const QString& text, const QString& name, QVBoxLayout* column,
                QWidget* parent) {
  auto* const label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  column->addWidget(label);
  return label;
}

}  // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("About vexlor's Fragsmith"));

  auto* const layout = new QVBoxLayout(this);
  auto* const row = new QHBoxLayout;
  layout->addLayout(row);
  const int line = fontMetrics().lineSpacing();
  row->setSpacing(line);
  const QIcon icon = QApplication::windowIcon();
  if (!icon.isNull()) {
    auto* const picture = new QLabel(this);
    picture->setPixmap(icon.pixmap(3 * line));
    row->addWidget(picture, 0, Qt::AlignTop);
  }
  auto* const column = new QVBoxLayout;
  row->addLayout(column, 1);
  QLabel* const name = AddLine(QStringLiteral("Fragsmith"),
                               QStringLiteral("lblName"), column, this);
  QFont heading = name->font();
  heading.setBold(true);
  heading.setPointSizeF(heading.pointSizeF() * 1.4);
  name->setFont(heading);
  AddLine(QStringLiteral("Version ") + QString::fromUtf8(kProgramVersion),
          QStringLiteral("lblVersion"), column, this);
  AddLine(QStringLiteral("Bot creator program for Q3A."),
          QStringLiteral("lblDescription"), column, this);

  layout->addSpacing(line);
  layout->addWidget(MakeButtons(QDialogButtonBox::Ok, this));
  // Wide enough for the title and what stands beside it.
  layout->addStrut(fontMetrics().horizontalAdvance(windowTitle()) + 8 * line);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace fragsmith
