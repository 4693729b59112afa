#include "editor/pages/game_picture.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "chat/vocabulary.h"
#include "editor/pages/parameter_help.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr int kCorner = 8;
constexpr int kLines = 12;
constexpr int kBeside = 16;
constexpr int kAbove = 12;
constexpr int kBetween = 4;

const ControlRow* RowOf(const PageRow& page, ParameterId id) {
  const ParameterId wanted = id.level() ? id.At(kLevels.front()) : id;
  for (const FrameRow& frame : page.frames) {
    for (const ControlRow& control : frame.controls) {
      if (!control.IsEmptyPlace() && control.Id() == wanted) return &control;
    }
  }
  return nullptr;
}

}  // namespace

GamePicture::GamePicture(const PageRow& page, CurrentBot& current,
                         QWidget* parent)
    : QWidget(parent),
      page_(page),
      current_(current),
      id_(page.frames.front().controls.front().Id()),
      name_(new QLabel(this)),
      help_(new QLabel(this)) {
  setObjectName(QStringLiteral("picGame"));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(kBeside, kAbove, kBeside, kAbove);
  row->setSpacing(16);
  if (page.frames.front().controls.front().HasLevels()) {
    plot_ = new SkillPlot(this);
    row->addWidget(plot_, 3);
  } else if (kWeaponWeightRange.Contains(id_)) {
    bars_ = new WeaponBars(this);
    row->addWidget(bars_, 3);
  }
  QFont bold = font();
  bold.setBold(true);
  name_->setFont(bold);
  name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  help_->setWordWrap(true);
  help_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  help_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* const column = new QVBoxLayout;
  column->setSpacing(kBetween);
  column->addWidget(name_);
  column->addWidget(help_, 1);
  row->addLayout(column, 2);
  Show(id_);
}

QSize GamePicture::sizeHint() const {
  return {0, fontMetrics().lineSpacing() * kLines + 2 * kAbove};
}

int GamePicture::heightForWidth(int width) const {
  if (plot_ != nullptr || bars_ != nullptr) return sizeHint().height();
  int help = 0;
  for (const FrameRow& frame : page_.frames) {
    for (const ControlRow& control : frame.controls) {
      if (control.IsEmptyPlace()) continue;
      const QRect text = help_->fontMetrics().boundingRect(
          QRect(0, 0, width - 2 * kBeside, 0), Qt::TextWordWrap,
          PlainHelp(control));
      help = std::max(help, text.height());
    }
  }
  return name_->sizeHint().height() + kBetween + help + 2 * kAbove +
         fontMetrics().lineSpacing() / 2;
}

void GamePicture::Show(ParameterId id) {
  const ControlRow* const row = RowOf(page_, id);
  if (row == nullptr) return;
  id_ = row->Id();
  name_->setText(QString::fromUtf8(ParameterName(id_)));
  help_->setText(PlainHelp(*row));
  help_->setToolTip(help_->text());
  ShowBot();
}

void GamePicture::ShowBot() {
  if (plot_ != nullptr) plot_->ShowCharacteristic(current_.bot(), id_);
  if (bars_ != nullptr) bars_->ShowBot(current_.bot());
}

void GamePicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
                          kCorner, kCorner);
}

}  // namespace fragsmith
