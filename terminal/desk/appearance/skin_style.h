#pragma once

// The widgets' style: Fusion, and around each field an outline in the palette's colour for borders. Fusion
// takes its outlines from the background, so that on black they cannot be seen.

#include <QProxyStyle>

namespace algo::terminal::desk::appearance {

class TSkinStyle final : public QProxyStyle {
 public:
  TSkinStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
};

}  // namespace algo::terminal::desk::appearance
