#ifndef FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_
#define FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_

#include <QWidget>
#include <vector>

#include "trial/match_figures.h"

namespace fragsmith {

/// Draws how a share of the points settled, match by match: a line in the band
/// where the truth lies at 95 %, and the half that parts better from worse.
class SharePlot : public QWidget {
  Q_OBJECT

 public:
  explicit SharePlot(QWidget* parent = nullptr);

  /// The shares after each match, and how many matches there is room for.
  void ShowShares(const std::vector<Estimate>& shares, int matches);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Estimate> shares_;
  int matches_ = 1;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_SHARE_PLOT_H_
