#ifndef FRAGSMITH_EDITOR_TOOLKIT_CODE_PAGE_VALIDATOR_H_
#define FRAGSMITH_EDITOR_TOOLKIT_CODE_PAGE_VALIDATOR_H_

#include <QCoreApplication>
#include <QValidator>

namespace fragsmith {

/// Lets only characters of the game's code page into a text box, and none
/// that ends a line. The box says "inputRejected" for others. Lines that are
/// pasted become one.
class CodePageValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& text, int& position) const override;

 protected:
  static void JoinLines(QString& text, int& position);
};

/// What the status bar says when a character was refused.
inline constexpr const char* kRefusedCharacter = QT_TRANSLATE_NOOP(
    "CodePageValidator", "The game's texts cannot hold this character.");

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_CODE_PAGE_VALIDATOR_H_
