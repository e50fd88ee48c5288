#pragma once

// The title bar of a panel: caption, what a view adds to it, the chooser of the link group, and buttons to
// float and to close the panel.

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QToolButton>
#include <string>
#include <string_view>

#include "terminal/desk/appearance/skins.h"
#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/panels/title_buttons.h"

namespace algo::terminal::desk::panels {

class TDockTitle final : public QWidget {
  Q_OBJECT
 public:
  /// `dock` outlives the bar, which is its child. A panel that is not `linked` belongs to
  /// no group and offers none.
  TDockTitle(QDockWidget& dock, bool linked);

  /// The chosen group; empty for none.
  std::string Group() const;
  /// Chooses the group; one that is not offered leaves the choice as it was. Returns whether it was offered.
  bool SetGroup(std::string_view id);

  /// Shows the icon before the caption; a null icon for none.
  void SetIcon(const QIcon& icon);

  /// The buttons of the view, of which there are none at first.
  TTitleButtons& ViewButtons() { return FViewButtons; }

  /// Whether the bar offers to float and to dock the panel.
  void SetFloatOffered(bool offered) { FFloat.setVisible(offered); }

  /// Shows all texts in the language of `texts`.
  void Retranslate(const appearance::TTexts& texts);

  /// Shows the groups in the colours of the skin.
  void ShowSkin(const appearance::TSkin& skin);

 signals:
  /// The trader chose another group.
  void GroupChosen();

 private:
  void ShowCaption();

  QDockWidget& FDock;
  QLabel& FIcon;
  QLabel& FCaption;
  TTitleButtons& FViewButtons;
  QComboBox& FGroup;
  QToolButton& FFloat;
  QToolButton& FClose;
};

}  // namespace algo::terminal::desk::panels
