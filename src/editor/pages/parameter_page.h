#ifndef FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_
#define FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_

#include <vector>

#include "editor/controls/max_select.h"
#include "editor/controls/one_slider.h"
#include "editor/controls/three_slider.h"
#include "editor/pages/game_picture.h"
#include "editor/pages/scrolling_page.h"
#include "editor/state/current_bot.h"
#include "editor/toolkit/page_table.h"

class QGroupBox;

namespace fragsmith {

class ValueBox;

/// A page of value controls, made from its row of the table: `tsBotPara_N`
/// and `osBotPara_N`, N being the index of the parameter.
class ParameterPage : public ScrollingPage {
  Q_OBJECT

 public:
  /// The page keeps references to both.
  ParameterPage(const PageRow& page, CurrentBot& current,
                QWidget* parent = nullptr);

  /// Shows the values of the bot. On a page with a scale selector the
  /// smallest maximum is chosen that holds them all.
  void ShowBot() override;

  /// The same with the maximum that is chosen already.
  void ShowAgain();

  /// Draws the picture at the foot anew, after an edit.
  void ShowPicture();

 signals:
  /// A slider or its value was clicked for its menu.
  void ParameterMenuWanted(fragsmith::ParameterId parameter,
                           QPoint global_place);
  /// A value is to be as it was loaded.
  void ResetWanted(fragsmith::ParameterId parameter);
  /// What is being typed into a box of the page is another text.
  void Typed();
  /// The text of a box was refused.
  void TypingRefused(const QString& why);

 protected:
  QWidget* MakeContent() override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  /// Follows the pointer from control to control.
  bool eventFilter(QObject* watched, QEvent* event) override;

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
  void AttachBox(ValueBox& box);
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
  GamePicture* picture_ = nullptr;
  bool is_typing_ = false;
  bool was_changed_ = false;  ///< The bot, before the typing.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PARAMETER_PAGE_H_
