#ifndef FRAGSMITH_EDITOR_DIALOGS_SKILL_BOX_H_
#define FRAGSMITH_EDITOR_DIALOGS_SKILL_BOX_H_

#include <QComboBox>
#include <QSettings>

namespace fragsmith {

/// The skill at which a bot is tried or plays, 1 to 5, by the names of the
/// game's menus.
class SkillBox : public QComboBox {
  Q_OBJECT

 public:
  explicit SkillBox(QWidget* parent);

  int Skill() const { return currentIndex() + 1; }

  /// As it was last saved, in the group that the file is in.
  void Load(const QSettings& file);
  void Save(QSettings& file) const;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_SKILL_BOX_H_
