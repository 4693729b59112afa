#ifndef FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_
#define FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_

#include <QPainter>
#include <QString>
#include <QWidget>
#include <vector>

#include "trial/match_figures.h"

namespace fragsmith {

/// How the share of a run settled.
struct ShareLine {
  QString title;
  std::vector<Estimate> shares;  ///< After each match.
};

/// Draws how a share of the points settled, match by match: a line in the band
/// where the truth lies at 95 %, and the half that parts better from worse.
/// Other runs stand beside it as lines alone.
class SharePlot : public QWidget {
  Q_OBJECT

 public:
  explicit SharePlot(QWidget* parent = nullptr);

  /// At least one line, which is that of the run itself, and how many matches
  /// there is room for at least.
  void ShowShares(std::vector<ShareLine> lines, int matches);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintLine(QPainter& painter, const QRectF& area, std::size_t number);
  QColor ColorOf(std::size_t number) const;

  std::vector<ShareLine> lines_{1};
  int matches_ = 2;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_
