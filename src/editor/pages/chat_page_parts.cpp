#include "editor/pages/chat_page_parts.h"

#include <QLabel>
#include <QStyle>
#include <algorithm>

#include "editor/pages/page_table.h"
#include "editor/parameter_help.h"

namespace fragsmith {

void SetHelp(QWidget& widget, const QString& help) {
  widget.setToolTip(WrappedToolTip({}, help));
  widget.setWhatsThis(widget.toolTip());
  widget.setAccessibleDescription(help);
}

QListWidget* MakeList(const QString& name, const QString& caption,
                      QGridLayout& grid, int column, int rows) {
  auto* const list = new QListWidget;
  list->setObjectName(name);
  auto* const label = new QLabel(caption);
  label->setBuddy(list);
  list->setAccessibleName(label->text().remove(u'&').remove(u':'));
  const int height = list->fontMetrics().height();
  list->setIconSize(QSize(height, height));
  list->setMinimumHeight(list->fontMetrics().lineSpacing() * 5);
  grid.addWidget(label, 0, column);
  grid.addWidget(list, 1, column, rows, 1);
  return list;
}

void FitWidth(QListWidget& list) {
  int width = 0;
  for (int row = 0; row < list.count(); ++row) {
    width = std::max(
        width, list.fontMetrics().horizontalAdvance(list.item(row)->text()));
  }
  list.setFixedWidth(width + list.iconSize().width() +
                     list.fontMetrics().averageCharWidth() * 3 +
                     list.style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
                     2 * list.frameWidth());
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AddEntry(QListWidget& list, std::string_view text, const QString& help) {
  auto* const item = new QListWidgetItem(TableText(text), &list);
  item->setToolTip(WrappedToolTip(item->text(), help));
  item->setData(Qt::AccessibleDescriptionRole, help);
}

QPushButton* MakeButton(const QString& name, const QString& caption,
                        const QString& help) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(name);
  SetHelp(*button, help);
  return button;
}

}  // namespace fragsmith
