#ifndef FRAGSMITH_EDITOR_MAIN_TOOL_BAR_H_
#define FRAGSMITH_EDITOR_MAIN_TOOL_BAR_H_

#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <vector>

namespace fragsmith {

/// What is done most often, by the actions of the menu. In a narrow window the
/// icons stand without their texts.
class MainToolBar : public QToolBar {
  Q_OBJECT

 public:
  explicit MainToolBar(QMenuBar& menu, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowTexts(bool is_wanted);

  std::vector<QToolButton*> with_text_;  ///< Where there is room.
  int width_for_texts_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MAIN_TOOL_BAR_H_
