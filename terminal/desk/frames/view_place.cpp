#include "terminal/desk/frames/view_place.h"

#include <algorithm>
#include <iterator>

namespace algo::terminal::desk::frames {

namespace {

struct TSideRow {
  host::TDockPosition position;
  Qt::DockWidgetArea side;
};
constexpr TSideRow SideTable[] = {{host::TDockPosition::Left, Qt::LeftDockWidgetArea},
                                  {host::TDockPosition::Top, Qt::TopDockWidgetArea},
                                  {host::TDockPosition::Right, Qt::RightDockWidgetArea},
                                  {host::TDockPosition::Bottom, Qt::BottomDockWidgetArea}};

}  // namespace

TViewPlace PlaceOf(host::TIBaseView& provider) {
  if (provider.GetIsDialog()) return DialogPlaceOf(provider);
  TViewPlace place;
  const auto* row = std::ranges::find(SideTable, provider.GetDockPosition(), &TSideRow::position);
  if (row != std::end(SideTable)) {
    place.side = row->side;
    place.sideGiven = true;
  }
  place.docks = provider.GetCanDock();
  place.floats = !place.docks || provider.GetIsWindow();
  place.sizeable = provider.GetIsSizeable();
  return place;
}

TViewPlace DialogPlaceOf(host::TIBaseView& provider) {
  return {.docks = false, .floats = true, .sizeable = provider.GetIsSizeable()};
}

}  // namespace algo::terminal::desk::frames
