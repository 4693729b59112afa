#include "editor/controls/caption_mark.h"

#include <QStyle>
#include <algorithm>

#include "editor/toolkit/severity_icon.h"
#include "editor/toolkit/tool_tip.h"

namespace fragsmith {

void MarkText::Add(const Finding& finding) {
  Add(finding.severity, QString::fromStdString(finding.text));
}

void MarkText::Add(Severity severity, const QString& sentence) {
  gravest = gravest ? std::min(*gravest, severity) : severity;
  if (!text.isEmpty()) text += QStringLiteral("\n");
  text += sentence;
}

CaptionMark::CaptionMark(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblMark"));
  hide();
}

void CaptionMark::SetAlways(const MarkText& always) {
  always_ = always;
  ShowText({});
}

void CaptionMark::ShowText(const MarkText& text) {
  MarkText whole = text;
  if (always_.gravest) whole.Add(*always_.gravest, always_.text);
  if (shown_ == whole) return;
  shown_ = whole;
  setVisible(whole.gravest.has_value());
  if (!whole.gravest) return;
  setPixmap(
      SeverityIcon(*whole.gravest, *style()).pixmap(fontMetrics().ascent()));
  setToolTip(WrappedToolTip({}, whole.text));
  setAccessibleName(whole.text);
}

}  // namespace fragsmith
