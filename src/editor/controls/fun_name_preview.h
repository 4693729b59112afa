#ifndef FRAGSMITH_EDITOR_CONTROLS_FUN_NAME_PREVIEW_H_
#define FRAGSMITH_EDITOR_CONTROLS_FUN_NAME_PREVIEW_H_

#include <QColor>
#include <QFontMetricsF>
#include <QPointF>
#include <QString>
#include <QWidget>
#include <array>
#include <optional>
#include <vector>

namespace fragsmith {

/// The game's colours by the digits of their codes.
inline constexpr std::array<QRgb, 8> kFunNameColors = {
    qRgb(0, 0, 0),   qRgb(255, 0, 0),   qRgb(0, 255, 0),   qRgb(255, 255, 0),
    qRgb(0, 0, 255), qRgb(0, 255, 255), qRgb(255, 0, 255), qRgb(255, 255, 255),
};

/// Shows a fun name in the colours that its codes ("^" and a digit 0 to 7)
/// ask for. A colour that would sink into the window's ground, such as black
/// in a dark theme, gets an outline.
class FunNamePreview : public QWidget {
  Q_OBJECT

 public:
  explicit FunNamePreview(QWidget* parent = nullptr);

  /// As the game shows it: on its own dark, whatever the desktop's theme is.
  void StandOnGameGround();

  /// How many times as large as the window's font; 1.7 at first.
  void SetLetterScale(double scale);

  /// A longer text goes on in further lines, as many as there is height for:
  /// its hint is for this many. Letters are smaller where that shows it all.
  void LetWrap(int lines);

  /// Text before the first code has the window's text colour; a "^" without
  /// such a digit is drawn as it stands.
  void DrawFunName(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Run {
    std::optional<QColor> color;  ///< Nothing for the window's own.
    QString text;
  };

  /// A part of the text that stands in one line.
  struct Piece {
    QPointF place;  ///< Where it begins, from the base line of the first.
    QString text;
    std::optional<QColor> color;
  };

  struct Lines {
    std::vector<Piece> pieces;
    int count = 1;
    bool is_cut = false;  ///< It ends with an ellipsis.
  };

  QFont NameFont(double scale) const;
  /// As many lines as the height has room for.
  Lines Layout(const QFontMetricsF& metrics) const;

  std::vector<Run> runs_;
  double letter_scale_ = 1.7;
  int lines_ = 1;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_FUN_NAME_PREVIEW_H_
