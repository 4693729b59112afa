#ifndef FRAGSMITH_EDITOR_CAPTIONED_FIELD_H_
#define FRAGSMITH_EDITOR_CAPTIONED_FIELD_H_

#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace fragsmith {

/// A control, or a row of them, with its caption above. The caption is the
/// buddy of the control that takes the focus.
class CaptionedField : public QWidget {
 public:
  CaptionedField(const QString& caption, QWidget* focus_target,
                 QWidget* parent = nullptr)
      : QWidget(parent), caption_(new QLabel(caption, this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(caption_);
    caption_->setBuddy(focus_target);
  }

  QVBoxLayout* column() { return static_cast<QVBoxLayout*>(layout()); }
  QLabel* caption() { return caption_; }

 private:
  QLabel* caption_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CAPTIONED_FIELD_H_
