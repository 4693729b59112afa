#include "editor/game_picture.h"

#include <QApplication>
#include <optional>

#include "editor/controls/value_control.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr int kFirstLevelIndex = 100;

}  // namespace

GamePicture::GamePicture(CurrentBot& current, QWidget* parent)
    : QStackedWidget(parent),
      current_(current),
      plot_(new SkillPlot(this)),
      bars_(new WeaponBars(this)) {
  addWidget(plot_);
  addWidget(bars_);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* /*old*/, QWidget* now) { Follow(now); });
}

void GamePicture::Follow(QWidget* focused) {
  const std::optional<int> parameter = ParameterOf(focused);
  if (!parameter) return;
  if (*parameter > kFirstLevelIndex) {
    characteristic_ = *parameter % kFirstLevelIndex;
    setCurrentWidget(plot_);
  } else if (kWeaponWeightRange.Contains(*parameter)) {
    setCurrentWidget(bars_);
  } else {
    return;
  }
  ShowBot();
}

void GamePicture::ShowBot() {
  // Nobody sees it while the list is closed.
  if (!isVisible()) return;
  if (currentWidget() == plot_) {
    plot_->ShowCharacteristic(current_.bot(), characteristic_);
  } else {
    bars_->ShowBot(current_.bot());
  }
}

}  // namespace fragsmith
