#ifndef FRAGSMITH_EDITOR_DIALOGS_DIALOG_PARTS_H_
#define FRAGSMITH_EDITOR_DIALOGS_DIALOG_PARTS_H_

#include <QAbstractItemView>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QStringList>
#include <QTreeWidget>

namespace fragsmith {

/// The closing buttons of a dialog in the platform's order: cmdOK, which
/// Enter presses too, and cmdCancel with its caption.
QDialogButtonBox* MakeButtons(QDialogButtonBox::StandardButtons buttons,
                              QDialog* dialog,
                              const QString& cancel = QStringLiteral("Cancel"));

/// A line below the fields of a dialog for what they want to tell. It keeps
/// its room when it is empty, and is read out when it speaks.
class HintLine : public QLabel {
  Q_OBJECT

 public:
  /// Room for so many lines of text.
  HintLine(int lines, QWidget* parent);

  void Say(const QString& hint);
};

/// Up, Down and the keys of pages move in the list while the box, in which one
/// looks for its rows, keeps the focus.
void LetBoxLeadList(QLineEdit* box, QAbstractItemView* list);

/// A list of rows with columns, whose widths follow from what is in them.
void SetUpRows(QTreeWidget& list, const char* name,
               const QString& accessible_name, const QStringList& headings);

/// Refuses what the game's texts cannot hold; the line says so.
void RefuseForeignCharacters(QLineEdit* box, HintLine* hint);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_DIALOG_PARTS_H_
