#ifndef FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_
#define FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_

#include <vector>

#include "editor/controls/max_select.h"
#include "editor/controls/one_slider.h"
#include "editor/controls/three_slider.h"
#include "editor/current_bot.h"
#include "editor/pages/page_table.h"
#include "editor/pages/scrolling_page.h"

class QGroupBox;

namespace fragsmith {

/// A page of value controls, made from its row of the table: `tsBotPara_N`
/// and `osBotPara_N`, N being the index of the parameter.
class ParameterPage : public ScrollingPage {
  Q_OBJECT

 public:
  /// The page keeps references to both.
  ParameterPage(const PageRow& page, CurrentBot& current,
                QWidget* parent = nullptr)
      : ScrollingPage(parent), page_(page), current_(current) {}

  /// Shows the values of the bot. On a page with a scale selector the
  /// smallest maximum is chosen that holds them all.
  void ShowBot() override;

 signals:
  /// A slider or its value was clicked for its menu.
  void ParameterMenuWanted(int parameter, QPoint global_place);

 protected:
  QWidget* MakeContent() override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct Frame {
    QGroupBox* box;
    int gaps;  ///< Between its rows, where it may grow.
  };
  template <typename Control>
  struct Placed {
    const ControlRow* row;
    Control* control;
  };

  QGroupBox* MakeFrame(const FrameRow& frame);
  QWidget* MakeScaleSelector(int number);
  ValueControl* MakeControl(const ControlRow& row);
  ThreeSlider* MakeThreeSlider(const ControlRow& row);
  OneSlider* MakeOneSlider(const ControlRow& row);

  /// Captions and scales of the controls that follow the scale selector.
  void SetScale(int max);
  int SmallestScale() const;

  const PageRow& page_;
  CurrentBot& current_;
  std::vector<Frame> frames_;
  std::vector<Placed<ThreeSlider>> three_sliders_;
  std::vector<Placed<OneSlider>> one_sliders_;
  MaxSelect* scale_selector_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_
