#include "editor/commands/edit_commands.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <optional>

#include "chat/vocabulary.h"
#include "editor/controls/value_control.h"
#include "editor/dialogs/find_dialog.h"
#include "editor/toolkit/game_text_conversion.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

QString CopyText(Level from, Level to) {
  return EditCommands::tr("Copy level %1 to level %2")
      .arg(NumberOf(from))
      .arg(NumberOf(to));
}

/// An item of the menu that says which edit it is about, if there is one.
QString StepText(const QString& item, const QString& item_of_step,
                 QString step) {
  return step.isEmpty()
             ? item
             : item_of_step.arg(step.replace(u'&', QLatin1String("&&")));
}

}  // namespace

EditCommands::EditCommands(CurrentBot& current, TypedText& typed_text,
                           PageNavigator& navigator, QWidget& window)
    : QObject(&window),
      current_(current),
      typed_text_(typed_text),
      navigator_(navigator),
      window_(window) {}

void EditCommands::Attach(QMenuBar& bar) {
  auto* const undo = bar.findChild<QAction*>(QStringLiteral("mnuUndo"));
  auto* const redo = bar.findChild<QAction*>(QStringLiteral("mnuRedo"));
  const auto show = [this, undo, redo] {
    const QUndoStack& steps = current_.steps();
    // Text that is being typed can be taken back too.
    undo->setEnabled(steps.canUndo() || current_.is_changed());
    undo->setText(StepText(tr("&Undo"), tr("&Undo %1"), steps.undoText()));
    redo->setEnabled(steps.canRedo());
    redo->setText(StepText(tr("&Redo"), tr("&Redo %1"), steps.redoText()));
  };
  connect(&current_.steps(), &QUndoStack::indexChanged, this, show);
  connect(&current_, &CurrentBot::ChangedFlagSet, this, show);
  show();

  auto* const reset = bar.findChild<QAction*>(QStringLiteral("mnuReset"));
  connect(
      bar.findChild<QMenu*>(QStringLiteral("mnuEdit")), &QMenu::aboutToShow,
      this, [reset] {
        reset->setEnabled(ParameterOf(QApplication::focusWidget()).has_value());
      });
  connect(bar.findChild<QMenu*>(QStringLiteral("mnuEdit")), &QMenu::aboutToHide,
          this, [reset] { reset->setEnabled(true); });
}

void EditCommands::Undo() {
  if (typed_text_.IsAny()) {
    typed_text_.Undo();
  } else {
    current_.steps().undo();
  }
}

void EditCommands::Find() {
  frmFind dialog(current_.bot(), &window_);
  if (dialog.exec() == QDialog::Accepted) navigator_.GoTo(dialog.Chosen());
}

void EditCommands::CopyLevel(Level from, Level to) {
  current_.Edit({.text = CopyText(from, to), .place = {}, .merges = false},
                [from, to](Bot& bot) {
                  for (const int index : kPerLevelRange) {
                    bot.Put({to, index}, bot.Parameter({from, index}));
                  }
                });
}

void EditCommands::CopyParameter(ParameterId from, ParameterId to) {
  if (!typed_text_.Store()) return;
  current_.Edit({.text = QString::fromUtf8(ParameterTitle(to)),
                 .place = to,
                 .merges = false},
                [from, to](Bot& bot) { bot.Put(to, bot.Parameter(from)); });
}

void EditCommands::Reset(ParameterId parameter) {
  if (!typed_text_.Store()) return;
  const Value loaded = current_.loaded().Parameter(parameter);
  current_.Edit(
      {.text = tr("Reset %1").arg(QString::fromUtf8(ParameterTitle(parameter))),
       .place = parameter,
       .merges = false},
      [parameter, &loaded](Bot& bot) { bot.Put(parameter, loaded); });
}

void EditCommands::ResetFocused() {
  if (const auto parameter = ParameterOf(QApplication::focusWidget())) {
    Reset(*parameter);
  }
}

void EditCommands::ShowParameterMenu(ParameterId parameter,
                                     QPoint global_place) {
  QMenu menu(&window_);
  const Value loaded = current_.loaded().Parameter(parameter);
  QAction* const reset =
      menu.addAction(tr("Re&set %1 to %2")
                         .arg(QString::fromUtf8(ParameterTitle(parameter)),
                              loaded == Value() ? QStringLiteral("0")
                                                : ToQString(ToText(loaded))));
  reset->setEnabled(loaded != current_.bot().Parameter(parameter));
  connect(reset, &QAction::triggered, this,
          [this, parameter] { Reset(parameter); });
  if (const std::optional<Level> own_level = parameter.level()) {
    menu.addSeparator();
    for (const Level level : kLevels) {
      if (level == *own_level) continue;
      const ParameterId to = parameter.At(level);
      connect(menu.addAction(CopyText(*own_level, level)), &QAction::triggered,
              this, [this, parameter, to] { CopyParameter(parameter, to); });
    }
  }
  menu.exec(global_place);
}

}  // namespace fragsmith
