#include "terminal/desk/skin_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace algo::terminal {

namespace {

void DrawOutline(const QStyleOption& option, QPainter& painter) {
  const bool focused = (option.state & QStyle::State_HasFocus) != 0;
  const qreal width = focused ? 2 : 1;
  const qreal inset = width / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(option.palette.color(focused ? QPalette::Highlight : QPalette::Mid), width));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), 2, 2);
  painter.restore();
}

}  // namespace

TSkinStyle::TSkinStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void TSkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameLineEdit || element == PE_IndicatorCheckBox || element == PE_PanelButtonCommand)
    DrawOutline(*option, *painter);
}

void TSkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox || control == CC_SpinBox) DrawOutline(*option, *painter);
}

}  // namespace algo::terminal
