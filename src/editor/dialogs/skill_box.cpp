#include "editor/dialogs/skill_box.h"

#include <string_view>

#include "editor/toolkit/wheel_guard.h"
#include "game/skill_names.h"

namespace fragsmith {
namespace {

constexpr int kFirstSkill = 4;
constexpr const char* kSkill = "skill";

}  // namespace

SkillBox::SkillBox(QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("cmbSkill"));
  setAccessibleName(tr("Skill"));
  IgnoreWheelWithoutFocus(*this);
  for (const std::string_view name : kSkillNames) {
    addItem(QStringLiteral("%1 - %2")
                .arg(count() + 1)
                .arg(QString::fromUtf8(name)));
  }
  setCurrentIndex(kFirstSkill - 1);
}

void SkillBox::Load(const QSettings& file) {
  const int skill = file.value(QLatin1String(kSkill), kFirstSkill).toInt();
  setCurrentIndex(qBound(1, skill, count()) - 1);
}

void SkillBox::Save(QSettings& file) const {
  file.setValue(QLatin1String(kSkill), Skill());
}

}  // namespace fragsmith
