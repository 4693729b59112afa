#ifndef FRAGSMITH_EDITOR_CONTROLS_CAPTIONED_FIELD_H_
#define FRAGSMITH_EDITOR_CONTROLS_CAPTIONED_FIELD_H_

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

#include "editor/controls/caption_mark.h"

namespace fragsmith {

/// A control, or a row of them, with its caption above. The caption is the
/// buddy of the control that takes the focus. All fields are of one height,
/// so that those beside each other stand in line.
class CaptionedField : public QWidget {
 public:
  CaptionedField(const QString& caption, QWidget* focus_target,
                 QWidget* parent = nullptr)
      : QWidget(parent), caption_(new QLabel(caption, this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    caption_row_ = new QHBoxLayout;
    caption_row_->setSpacing(fontMetrics().averageCharWidth());
    caption_row_->addWidget(caption_);
    caption_row_->addStretch(1);
    column->addLayout(caption_row_);
    caption_->setBuddy(focus_target);
    caption_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }

  void AddControl(QWidget* control) {
    column().addWidget(control, 1, Qt::Alignment());
    MakeRoom();
  }
  void AddControls(QLayout* row) {
    column().addLayout(row, 1);
    MakeRoom();
  }

  QLabel* caption() { return caption_; }

  /// The sign behind the caption; null while none was needed.
  CaptionMark* mark() const { return mark_; }
  CaptionMark* NeedMark() {
    if (mark_ == nullptr) {
      mark_ = new CaptionMark(this);
      caption_row_->insertWidget(1, mark_);
    }
    return mark_;
  }

 private:
  QVBoxLayout& column() { return static_cast<QVBoxLayout&>(*layout()); }

  /// A combo box is the highest of the controls.
  void MakeRoom() {
    setMinimumHeight(caption_->sizeHint().height() + column().spacing() +
                     QComboBox().sizeHint().height());
  }

  QLabel* caption_;
  QHBoxLayout* caption_row_;
  CaptionMark* mark_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_CAPTIONED_FIELD_H_
