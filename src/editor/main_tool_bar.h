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
  std::vector<QToolButton*> with_text_;  ///< Where there is room.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MAIN_TOOL_BAR_H_
