#include "desktop/calm_style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "desktop/readers.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

QColor Frame(const QStyleOption& option) {
  if (!(option.state & QStyle::State_Enabled)) return option.palette.color(QPalette::Mid);
  return option.palette.color(QPalette::Dark);
}

bool IsOff(const QStyleOption& option) { return !(option.state & QStyle::State_Enabled); }

QColor Fill(const QStyleOption& option) {
  const bool flat = (option.state & QStyle::State_ReadOnly) || IsOff(option);
  return option.palette.color(flat ? QPalette::Window : QPalette::Base);
}

// The accent stays in windows behind others.
QColor Accent(const QStyleOption& option) {
  return option.palette.color(IsOff(option) ? QPalette::Disabled : QPalette::Active, QPalette::Highlight);
}

void DrawField(const QStyleOption& option, QPainter* painter, const QWidget* widget) {
  const bool focus = option.state & QStyle::State_HasFocus;
  const bool wrong = widget != nullptr && !IsOff(option) && HasFault(*widget);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Fill(option));
  painter->setPen(
      QPen(wrong ? WrongColour() : (focus ? Accent(option) : Frame(option)), focus || wrong ? 2 : 1));
  painter->drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 2, 2);
  painter->restore();
}

// Around lists, tables and memos: a line, and one within it while they have the focus.
void DrawFrame(const QStyleOption& option, QPainter* painter) {
  const bool focus = option.state & QStyle::State_HasFocus;
  painter->setBrush(Qt::NoBrush);
  painter->setPen(focus ? Accent(option) : Frame(option));
  painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter->setPen(focus ? Accent(option) : Fill(option));
  painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
}

QRectF Square(const QStyleOption& option) {
  const double side = std::min(option.rect.width(), option.rect.height()) - 2;
  QRectF square(0, 0, side, side);
  square.moveCenter(QRectF(option.rect).center());
  return square;
}

// A tick box or a round option: filled with the accent where it is on.
void DrawIndicator(const QStyleOption& option, QPainter* painter, bool round) {
  const bool on = option.state & QStyle::State_On;
  const QColor accent = IsOff(option) ? option.palette.color(QPalette::Dark) : Accent(option);
  const QRectF square = Square(option);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const bool focus = option.state & QStyle::State_HasFocus;
  painter->setPen(QPen(on || focus ? accent : Frame(option), focus ? 2 : 1.2));
  painter->setBrush(on ? accent : Fill(option));
  if (round) {
    painter->drawEllipse(square);
  } else {
    painter->drawRoundedRect(square, 2, 2);
  }
  const QColor mark = option.palette.color(QPalette::Active, QPalette::HighlightedText);
  if (on && round) {
    painter->setPen(Qt::NoPen);
    painter->setBrush(mark);
    painter->drawEllipse(square.center(), square.width() / 5, square.width() / 5);
  } else if (on) {
    painter->setPen(QPen(mark, square.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&square](double x, double y) {
      return square.topLeft() + QPointF(x * square.width(), y * square.height());
    };
    painter->drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.3)}));
  }
  painter->restore();
}

}  // namespace

CalmStyle::CalmStyle() : QProxyStyle("Fusion") {}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      // The line of a drop-down list has its frame from the list.
      if (frame == nullptr || frame->lineWidth > 0) return DrawField(*option, painter, widget);
      return painter->fillRect(option->rect, Fill(*option));
    }
    case PE_Frame:
      return DrawFrame(*option, painter);
    case PE_IndicatorCheckBox:
      return DrawIndicator(*option, painter, false);
    case PE_IndicatorRadioButton:
      return DrawIndicator(*option, painter, true);
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (control != CC_ComboBox) return QProxyStyle::drawComplexControl(control, option, painter, widget);
  DrawField(*option, painter, widget);
  const QRectF arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
  const double half = Quarters(1);
  const QPointF middle = arrow.center();
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(
      QPen(option->palette.color(QPalette::Text), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(QPolygonF({middle + QPointF(-half, -half / 2), middle + QPointF(0, half / 2),
                                   middle + QPointF(half, -half / 2)}));
  painter->restore();
}

QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  if (element != SE_HeaderLabel) return QProxyStyle::subElementRect(element, option, widget);
  // The margin of a heading is meant for its sides; above and below it would cut the letters.
  const int margin = pixelMetric(PM_HeaderMargin, option, widget);
  return option->rect.adjusted(margin, 0, -margin, 0);
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_DefaultFrameWidth:
      // Room for the mark of the focus.
      return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr
                 ? 2
                 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_FocusFrameHMargin:  // beside the texts of lists
      return Quarters(2);
    case PM_HeaderMargin:
      return Quarters(1) + 2;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return Quarters(4);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      return Quarters(2);
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  if (type == CT_PushButton) return size + QSize(Quarters(5), Quarters(2));
  QSize fitted = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_LineEdit || type == CT_ComboBox) fitted.setHeight(Quarters(6));
  return fitted;
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
  // Buttons keep the order in which the forms put them, and lists fold out below their field.
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

}  // namespace tarvane::desktop
