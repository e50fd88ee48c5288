#pragma once

// The pictures of views, for windows and title bars.

#include <QIcon>
#include <vector>

#include "plugin/host_contract/view_parts.h"
#include "terminal/desk/panels/title_buttons.h"

namespace algo::terminal::desk::frames {

/// The picture as an icon; a null icon for none, and for one whose pixels do not fill its size.
QIcon IconOf(const host::TImage& image);

/// The buttons with their pictures. One whose picture is not among the images has none.
std::vector<panels::TTitleButton> TitleButtonsOf(const std::vector<host::TCaptionButton>& buttons,
                                                 const std::vector<host::TImage>& images);

}  // namespace algo::terminal::desk::frames
