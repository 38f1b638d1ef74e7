#include "desktop/readers.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace tarvane::desktop {
namespace {

constexpr char kUnit[] = "reader_unit";
constexpr char kGroup[] = "reader_group";
constexpr char kFault[] = "fault";
constexpr char kTip[] = "usual_tip";
constexpr qsizetype kLongestName = 40;

// The parts that a field is made of are no fields.
void Collect(QWidget* widget, std::vector<QWidget*>& widgets) {
  widgets.push_back(widget);
  if (NeedsName(*widget)) return;
  for (QObject* child : widget->children()) {
    if (auto* inner = qobject_cast<QWidget*>(child)) Collect(inner, widgets);
  }
}

void Collect(QLayout* layout, std::vector<QWidget*>& widgets) {
  for (int at = 0; at < layout->count(); ++at) {
    QLayoutItem* item = layout->itemAt(at);
    if (item->widget() != nullptr) Collect(item->widget(), widgets);
    if (item->layout() != nullptr) Collect(item->layout(), widgets);
  }
}

void Describe(QWidget* widget) {
  QStringList parts = {widget->property(kFault).toString(), widget->property(kGroup).toString()};
  parts.removeAll(QString());
  widget->setAccessibleDescription(parts.join(". "));
}

// "Order No:" is said without its colon.
QString Said(QString text) {
  text = text.simplified();
  while (text.endsWith(':') || text.endsWith('=')) text = text.chopped(1).trimmed();
  return text;
}

}  // namespace

std::vector<QWidget*> WidgetsIn(const Piece& piece) {
  std::vector<QWidget*> widgets;
  if (piece.widget != nullptr) Collect(piece.widget, widgets);
  if (piece.layout != nullptr) Collect(piece.layout, widgets);
  return widgets;
}

bool NeedsName(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QCalendarWidget*>(&widget) != nullptr;
}

void SetReaderName(QWidget* widget, const QString& name) {
  const QString said = Said(name);
  if (said.isEmpty() || !widget->accessibleName().isEmpty()) return;
  const QString unit = widget->property(kUnit).toString();
  widget->setAccessibleName(unit.isEmpty() ? said : said + ", " + unit);
}

void SetReaderUnit(QWidget* widget, const QString& unit) { widget->setProperty(kUnit, unit); }

void SetReaderGroup(QWidget* widget, const QString& heading) {
  if (!widget->property(kGroup).toString().isEmpty()) return;
  widget->setProperty(kGroup, Said(heading));
  Describe(widget);
}

void SetFault(QWidget* widget, const QString& fault) {
  const QString former = widget->property(kFault).toString();
  if (former == fault) return;
  if (former.isEmpty()) widget->setProperty(kTip, widget->toolTip());
  widget->setProperty(kFault, fault);
  widget->setToolTip(fault.isEmpty() ? widget->property(kTip).toString() : fault);
  Describe(widget);
  widget->update();
}

bool HasFault(const QWidget& widget) { return !widget.property(kFault).toString().isEmpty(); }

void NameAll(const Piece& piece, const QString& heading) {
  for (QWidget* widget : WidgetsIn(piece)) {
    if (!NeedsName(*widget)) continue;
    if (widget->accessibleName().isEmpty()) {
      SetReaderName(widget, heading);
    } else {
      SetReaderGroup(widget, heading);
    }
  }
}

void NameByTexts(const Pieces& pieces) {
  QString text;
  for (const Piece& piece : pieces) {
    const std::vector<QWidget*> widgets = WidgetsIn(piece);
    if (!text.isEmpty() && !widgets.empty() && NeedsName(*widgets.front())) {
      SetReaderName(widgets.front(), text);
    }
    const auto* label = qobject_cast<const QLabel*>(piece.widget);
    if (label != nullptr) {
      // A paragraph names nothing.
      text = label->text().size() > kLongestName ? QString() : label->text();
    } else if (!widgets.empty()) {
      text.clear();
    }
  }
}

}  // namespace tarvane::desktop
