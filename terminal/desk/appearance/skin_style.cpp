#include "terminal/desk/appearance/skin_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <iterator>

namespace algo::terminal::desk::appearance {

namespace {

constexpr QStyle::PrimitiveElement OutlinedElements[] = {
    QStyle::PE_FrameLineEdit, QStyle::PE_IndicatorCheckBox, QStyle::PE_PanelButtonCommand, QStyle::PE_Frame};

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
  if (std::ranges::find(OutlinedElements, element) != std::end(OutlinedElements))
    DrawOutline(*option, *painter);
}

void TSkinStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_ProgressBarGroove) DrawOutline(*option, *painter);
}

void TSkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox || control == CC_SpinBox) DrawOutline(*option, *painter);
}

}  // namespace algo::terminal::desk::appearance
