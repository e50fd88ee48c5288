#pragma once

// The buttons that a view adds to the title bar of its panel.

#include <QIcon>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <vector>

namespace algo::terminal::desk::panels {

struct TTitleButton {
  std::int32_t id = 0;  ///< what the view knows it by
  QString hint;         ///< the tool tip, and the name for screen readers
  QIcon icon;           ///< a null icon for none, in whose place the button shows its hint
};

class TTitleButtons final : public QWidget {
  Q_OBJECT
 public:
  explicit TTitleButtons(QWidget& parent);

  /// Shows these buttons from left to right, in place of those before.
  void Show(const std::vector<TTitleButton>& buttons);

 signals:
  /// The button of that id was clicked.
  void Clicked(std::int32_t id);

 private:
  void Add(const TTitleButton& button);
};

}  // namespace algo::terminal::desk::panels
