#ifndef FRAGSMITH_EDITOR_TOOLKIT_QT_PROMPTS_H_
#define FRAGSMITH_EDITOR_TOOLKIT_QT_PROMPTS_H_

#include <QPointer>
#include <QWidget>
#include <optional>
#include <string>

#include "support/prompts.h"

namespace fragsmith {

/// Message boxes and questions of the window.
class QtPrompts : public Prompts {
 public:
  /// Boxes are modal over this window, once there is one.
  void SetParent(QWidget* parent) { parent_ = parent; }

  void Show(const Message& message) override;
  bool Confirm(const std::string& title, const std::string& text) override;
  std::size_t Choose(const std::string& title, const std::string& text,
                     const std::vector<std::string>& buttons) override;
  std::optional<std::string> AskText(const std::string& title,
                                     const std::string& prompt) override;

 private:
  /// The dialog on top, so that a box never opens behind it.
  QWidget* TopWindow() const;

  QPointer<QWidget> parent_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_QT_PROMPTS_H_
