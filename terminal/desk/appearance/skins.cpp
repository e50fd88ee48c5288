#include "terminal/desk/appearance/skins.h"

#include <QApplication>
#include <QToolTip>
#include <algorithm>

#include "plugin/host_contract/look_and_feel_service.h"
#include "terminal/desk/appearance/skin_style.h"

namespace algo::terminal::desk::appearance {

namespace {

struct TRoleRow {
  QPalette::ColorRole role;
  forms::TColor TSkin::*color;
  forms::TColor TSkin::*disabled;
};

constexpr TRoleRow RoleTable[] = {
    {QPalette::Window, &TSkin::window, &TSkin::window},
    {QPalette::WindowText, &TSkin::text, &TSkin::faint},
    {QPalette::Base, &TSkin::base, &TSkin::window},
    {QPalette::AlternateBase, &TSkin::alternate, &TSkin::window},
    {QPalette::Text, &TSkin::text, &TSkin::faint},
    {QPalette::PlaceholderText, &TSkin::faint, &TSkin::faint},
    {QPalette::Button, &TSkin::button, &TSkin::window},
    {QPalette::ButtonText, &TSkin::text, &TSkin::faint},
    {QPalette::BrightText, &TSkin::highlightText, &TSkin::highlightText},
    {QPalette::Highlight, &TSkin::highlight, &TSkin::highlight},
    {QPalette::HighlightedText, &TSkin::highlightText, &TSkin::highlightText},
    {QPalette::Link, &TSkin::buy, &TSkin::faint},
    {QPalette::LinkVisited, &TSkin::buy, &TSkin::faint},
    {QPalette::ToolTipBase, &TSkin::base, &TSkin::base},
    {QPalette::ToolTipText, &TSkin::text, &TSkin::text},
    {QPalette::Light, &TSkin::alternate, &TSkin::alternate},
    {QPalette::Midlight, &TSkin::button, &TSkin::button},
    {QPalette::Mid, &TSkin::border, &TSkin::border},
    {QPalette::Dark, &TSkin::border, &TSkin::border},
    {QPalette::Shadow, &TSkin::border, &TSkin::border},
};

}  // namespace

void TSkin::FillInto(THostData& data) const {
  data.colors.insert_or_assign(host::BuyColor, buy);
  data.colors.insert_or_assign(host::SellColor, sell);
}

const TSkin* SkinNamed(std::string_view name) {
  const auto* skin = std::ranges::find(Skins, name, &TSkin::name);
  return skin != Skins.end() ? skin : nullptr;
}

QPalette PaletteOf(const TSkin& skin) {
  QPalette palette;
  for (const TRoleRow& row : RoleTable) {
    palette.setColor(row.role, QColor::fromRgb(skin.*row.color));
    palette.setColor(QPalette::Disabled, row.role, QColor::fromRgb(skin.*row.disabled));
  }
  return palette;
}

void ApplySkin(const TSkin& skin) {
  const QPalette palette = PaletteOf(skin);
  QApplication::setStyle(new TSkinStyle());  // the application owns it
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
}

}  // namespace algo::terminal::desk::appearance
