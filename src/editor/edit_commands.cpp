#include "editor/edit_commands.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <optional>

#include "editor/controls/value_control.h"
#include "editor/dialogs/find_dialog.h"
#include "editor/game_text_conversion.h"
#include "editor/parameter_names.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr int kFirstLevelIndex = 100;

FindingPlace PlaceOf(int parameter) {
  FindingPlace place;
  place.parameter = parameter;
  return place;
}

QString LevelName(int level) { return QStringLiteral("level %1").arg(level); }

}  // namespace

EditCommands::EditCommands(CurrentBot& current, IdentityPanel& identity,
                           PageNavigator& navigator, QWidget& window)
    : QObject(&window),
      current_(current),
      identity_(identity),
      navigator_(navigator),
      window_(window) {}

void EditCommands::Attach(QMenuBar& bar) {
  auto* const undo = bar.findChild<QAction*>(QStringLiteral("mnuUndo"));
  auto* const redo = bar.findChild<QAction*>(QStringLiteral("mnuRedo"));
  const auto show = [this, undo, redo] {
    const QUndoStack& steps = current_.steps();
    // Text that is being typed can be taken back too.
    undo->setEnabled(steps.canUndo() || current_.is_changed());
    undo->setText(QStringLiteral("&Undo %1")
                      .arg(steps.undoText().replace(u'&', QLatin1String("&&")))
                      .trimmed());
    redo->setEnabled(steps.canRedo());
    redo->setText(QStringLiteral("&Redo %1")
                      .arg(steps.redoText().replace(u'&', QLatin1String("&&")))
                      .trimmed());
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
  if (identity_.RevertTyping()) {
    if (current_.steps().isClean()) current_.SetChanged(false);
    return;
  }
  current_.steps().undo();
}

void EditCommands::Find() {
  frmFind dialog(current_.bot(), &window_);
  if (dialog.exec() == QDialog::Accepted) navigator_.GoTo(dialog.Chosen());
}

void EditCommands::CopyLevel(int from, int to) {
  current_.Edit(
      {.text =
           QStringLiteral("Copy %1 to %2").arg(LevelName(from), LevelName(to)),
       .place = {},
       .merges = false},
      [from, to](Bot& bot) {
        for (int index = kPerLevelRange.first; index <= kPerLevelRange.last;
             ++index) {
          (void)bot.SetParameter(LevelIndex(to, index),
                                 bot.Parameter(LevelIndex(from, index)));
        }
      });
}

void EditCommands::CopyParameter(int from, int to) {
  current_.Edit(
      {.text = ParameterTitle(to), .place = PlaceOf(to), .merges = false},
      [from, to](Bot& bot) {
        (void)bot.SetParameter(to, bot.Parameter(from));
      });
}

void EditCommands::Reset(int parameter) {
  const Value loaded = current_.loaded().Parameter(parameter);
  current_.Edit(
      {.text = QStringLiteral("Reset %1").arg(ParameterTitle(parameter)),
       .place = PlaceOf(parameter),
       .merges = false},
      [parameter, &loaded](Bot& bot) {
        (void)bot.SetParameter(parameter, loaded);
      });
}

void EditCommands::ResetFocused() {
  if (const auto parameter = ParameterOf(QApplication::focusWidget())) {
    Reset(*parameter);
  }
}

void EditCommands::ShowParameterMenu(int parameter, QPoint global_place) {
  QMenu menu(&window_);
  const Value loaded = current_.loaded().Parameter(parameter);
  QAction* const reset =
      menu.addAction(QStringLiteral("Re&set %1 to %2")
                         .arg(ParameterTitle(parameter),
                              loaded == Value() ? QStringLiteral("0")
                                                : ToQString(ToText(loaded))));
  reset->setEnabled(loaded != current_.bot().Parameter(parameter));
  connect(reset, &QAction::triggered, this,
          [this, parameter] { Reset(parameter); });
  if (parameter > kFirstLevelIndex) {
    menu.addSeparator();
    const int own_level = parameter / kFirstLevelIndex;
    for (const int level : kSkillLevels) {
      if (level == own_level) continue;
      const int to = LevelIndex(level, parameter % kFirstLevelIndex);
      connect(menu.addAction(QStringLiteral("Copy %1 to %2")
                                 .arg(LevelName(own_level), LevelName(level))),
              &QAction::triggered, this,
              [this, parameter, to] { CopyParameter(parameter, to); });
    }
  }
  menu.exec(global_place);
}

}  // namespace fragsmith
