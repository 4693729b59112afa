#ifndef FRAGSMITH_EDITOR_CONTROLS_CAPTION_MARK_H_
#define FRAGSMITH_EDITOR_CONTROLS_CAPTION_MARK_H_

#include <QLabel>
#include <QString>
#include <optional>

#include "checks/finding.h"

namespace fragsmith {

/// What is to be said beside a control.
struct MarkText {
  std::optional<Severity> gravest;
  QString text;  ///< Plain; a paragraph for each finding.

  void Add(const Finding& finding);
  void Add(Severity severity, const QString& sentence);

  bool operator==(const MarkText&) const = default;
};

/// A small sign beside a caption, with its reason as the tool tip and for
/// assistive tools.
class CaptionMark : public QLabel {
  Q_OBJECT

 public:
  explicit CaptionMark(QWidget* parent = nullptr);

  /// What holds whatever the bot is like, such as that the game never reads
  /// the value.
  void SetAlways(const MarkText& always);

  /// Hides the mark when there is nothing to say.
  void ShowText(const MarkText& text);

 private:
  MarkText always_;
  std::optional<MarkText> shown_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_CAPTION_MARK_H_
