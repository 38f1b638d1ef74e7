#include "desktop/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <array>
#include <memory>

#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

// What an icon is drawn with, on a square of 24 units: lines in the text's colour, one part in the accent.
struct Pen {
  QPainter& painter;
  QColor line;
  QColor accent;

  void Stroke(const QPainterPath& path, bool accented = false, double width = 2) const {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accented ? accent : line, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
  }
  void Fill(const QPainterPath& path) const { painter.fillPath(path, accent); }
};

struct Point {
  double x, y;
};

QPainterPath Lines(std::initializer_list<Point> points) {
  QPainterPath path;
  for (const Point& point : points) {
    if (path.elementCount() == 0) {
      path.moveTo(point.x, point.y);
    } else {
      path.lineTo(point.x, point.y);
    }
  }
  return path;
}

QPainterPath Box(double x, double y, double width, double height, double round = 1.5) {
  QPainterPath path;
  path.addRoundedRect(x, y, width, height, round, round);
  return path;
}

QPainterPath Circle(double x, double y, double radius) {
  QPainterPath path;
  path.addEllipse(QPointF(x, y), radius, radius);
  return path;
}

QPainterPath Sheet() { return Lines({{6, 3}, {14, 3}, {19, 8}, {19, 21}, {6, 21}, {6, 3}}); }

void NewRecord(const Pen& pen) {
  pen.Stroke(Lines({{12, 21}, {5, 21}, {5, 3}, {13, 3}, {18, 8}, {18, 11}}));
  pen.Stroke(Lines({{18, 14}, {18, 22}}), true);
  pen.Stroke(Lines({{14, 18}, {22, 18}}), true);
}

void SaveRecords(const Pen& pen) {
  pen.Stroke(Lines({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}, {4, 4}}));
  pen.Stroke(Lines({{8, 4}, {8, 9}, {15, 9}, {15, 4}}));
  pen.Fill(Box(8, 13, 8, 7, 0.5));
}

void Print(const Pen& pen) {
  pen.Stroke(Lines({{7, 8}, {7, 3}, {17, 3}, {17, 8}}));
  pen.Stroke(Box(3, 8, 18, 8));
  pen.Stroke(Box(7, 14, 10, 7, 0.5), true);
}

void Search(const Pen& pen) {
  pen.Stroke(Circle(10, 10, 6.5));
  pen.Stroke(Lines({{15, 15}, {21, 21}}), true);
}

void Order(const Pen& pen) {
  pen.Stroke(Sheet());
  pen.Stroke(Lines({{9, 14}, {11.5, 16.5}, {16, 11}}), true);
}

void Clear(const Pen& pen) {
  pen.Stroke(Lines({{9, 20}, {3, 14}, {13, 4}, {21, 12}, {13, 20}, {9, 20}, {21, 20}}));
  pen.Stroke(Lines({{8, 9}, {16, 17}}), true);
}

void History(const Pen& pen) {
  pen.Stroke(Circle(12, 12, 9));
  pen.Stroke(Lines({{12, 7}, {12, 12}, {16, 14}}), true);
}

void Payment(const Pen& pen) {
  pen.Stroke(Box(2, 6, 20, 12));
  pen.Stroke(Circle(12, 12, 3), true);
}

void QuickClear(const Pen& pen) {
  pen.Stroke(Lines({{4, 7}, {20, 7}}));
  pen.Stroke(Lines({{9, 7}, {9, 4}, {15, 4}, {15, 7}}));
  pen.Stroke(Lines({{6, 7}, {7, 21}, {17, 21}, {18, 7}}));
  pen.Stroke(Lines({{10, 11}, {10, 17}}), true);
  pen.Stroke(Lines({{14, 11}, {14, 17}}), true);
}

// A window between its curtains.
void Curtain(const Pen& pen) {
  for (const double x : {9.0, 12.0, 15.0}) pen.Stroke(Lines({{x, 6}, {x, 18}}), false, 1.2);
  for (const double y : {6.0, 12.0, 18.0}) pen.Stroke(Lines({{9, y}, {15, y}}), false, 1.2);
  pen.Fill(Box(3, 3, 6, 18.5, 1));
  pen.Fill(Box(15, 3, 6, 18.5, 1));
  pen.Stroke(Lines({{1.5, 3}, {22.5, 3}}));
}

void Customers(const Pen& pen) {
  pen.Stroke(Circle(12, 8, 4.5), true);
  QPainterPath shoulders;
  shoulders.moveTo(3, 21);
  shoulders.cubicTo(3, 13, 21, 13, 21, 21);
  shoulders.closeSubpath();
  pen.Stroke(shoulders);
}

// A roll of fabric.
void Products(const Pen& pen) {
  pen.Stroke(Circle(6.5, 8, 4));
  pen.Stroke(Lines({{6.5, 4}, {20, 4}, {20, 12}, {6.5, 12}}));
  pen.Stroke(Lines({{20, 12}, {20, 21}, {11, 21}, {11, 12}}), true);
}

void Suppliers(const Pen& pen) {
  pen.Stroke(Lines({{5, 17}, {2, 17}, {2, 6}, {14, 6}, {14, 17}, {9, 17}}));
  pen.Stroke(Lines({{14, 10}, {19, 10}, {22, 13}, {22, 17}, {20, 17}}));
  pen.Stroke(Circle(7, 18, 2), true);
  pen.Stroke(Circle(17.5, 18, 2), true);
  pen.Stroke(Lines({{14, 17}, {15.5, 17}}));
}

void Pricing(const Pen& pen) {
  pen.Stroke(Lines({{3, 4}, {12, 3}, {21, 12}, {12, 21}, {3, 12}, {3, 4}}));
  pen.Stroke(Circle(8, 8, 1.5), true);
}

void Previous(const Pen& pen) { pen.Stroke(Lines({{15, 5}, {8, 12}, {15, 19}})); }
void Next(const Pen& pen) { pen.Stroke(Lines({{9, 5}, {16, 12}, {9, 19}})); }

void OpenFolder(const Pen& pen) {
  pen.Stroke(Lines({{3, 20}, {3, 4}, {9, 4}, {11, 7}, {19, 7}, {19, 10}}));
  pen.Stroke(Lines({{3, 20}, {7, 11}, {22, 11}, {18, 20}, {3, 20}}), true);
}

void CopySheets(const Pen& pen) {
  pen.Stroke(Lines({{5, 16}, {3, 16}, {3, 3}, {14, 3}, {14, 5}}));
  pen.Stroke(Box(8, 8, 13, 13), true);
}

void PasteSheet(const Pen& pen) {
  pen.Stroke(Lines({{8, 20}, {4, 20}, {4, 5}, {17, 5}, {17, 8}}));
  pen.Stroke(Box(8, 3, 5, 3.5, 1));
  pen.Stroke(Box(10, 11, 11, 10), true);
}

void BoldLetter(const Pen& pen) {
  QPainterPath bows = Lines({{8, 4}, {8, 20}, {14, 20}});
  bows.cubicTo(20, 20, 20, 12, 14, 12);
  bows.lineTo(8, 12);
  bows.moveTo(8, 4);
  bows.lineTo(13, 4);
  bows.cubicTo(18, 4, 18, 12, 13, 12);
  pen.Stroke(bows, false, 3);
}

void ItalicLetter(const Pen& pen) {
  pen.Stroke(Lines({{14, 4}, {10, 20}}));
  pen.Stroke(Lines({{11, 4}, {17, 4}}));
  pen.Stroke(Lines({{7, 20}, {13, 20}}));
}

void UnderlinedLetter(const Pen& pen) {
  QPainterPath bow = Lines({{7, 3}, {7, 11}});
  bow.cubicTo(7, 18, 17, 18, 17, 11);
  bow.lineTo(17, 3);
  pen.Stroke(bow);
  pen.Stroke(Lines({{5, 21}, {19, 21}}), true);
}

void CenteredLines(const Pen& pen) {
  pen.Stroke(Lines({{4, 5}, {20, 5}}));
  pen.Stroke(Lines({{8, 10}, {16, 10}}), true);
  pen.Stroke(Lines({{4, 15}, {20, 15}}));
  pen.Stroke(Lines({{8, 20}, {16, 20}}), true);
}

// A letter with what makes it larger or smaller.
void SizedLetter(const Pen& pen) {
  pen.Stroke(Lines({{2, 20}, {8, 4}, {14, 20}}));
  pen.Stroke(Lines({{4.5, 14}, {11.5, 14}}));
  pen.Stroke(Lines({{16, 7}, {22, 7}}), true);
}

void LargerLetter(const Pen& pen) {
  SizedLetter(pen);
  pen.Stroke(Lines({{19, 4}, {19, 10}}), true);
}

using DrawIcon = void (*)(const Pen&);
constexpr std::array<std::pair<std::string_view, DrawIcon>, 27> kIcons = {{
    {"New Record", NewRecord},
    {"Save Records", SaveRecords},
    {"Print", Print},
    {"Search", Search},
    {"Order", Order},
    {"Clear", Clear},
    {"History", History},
    {"Payment", Payment},
    {"Quick Clear", QuickClear},
    {"Estimate", Curtain},
    {"Cdatabase", Customers},
    {"products", Products},
    {"Sdatabase", Suppliers},
    {"PricingDatabase", Pricing},
    {"Previous", Previous},
    {"Next", Next},
    {"New", NewRecord},
    {"Open", OpenFolder},
    {"Save", SaveRecords},
    {"Copy", CopySheets},
    {"Paste", PasteSheet},
    {"Bold", BoldLetter},
    {"Italic", ItalicLetter},
    {"Underline", UnderlinedLetter},
    {"Center", CenteredLines},
    {"FontPlus", LargerLetter},
    {"FontMinus", SizedLetter},
}};

// The curtain in white on a coloured ground.
void WindowPicture(const Pen& pen) {
  pen.painter.fillPath(Box(0, 0, 24, 24, 4), QColor(0xff1f5f99));
  pen.painter.translate(2.4, 2.4);
  pen.painter.scale(0.8, 0.8);
  Curtain({pen.painter, Qt::white, Qt::white});
}

class DrawnIcon : public QIconEngine {
 public:
  explicit DrawnIcon(DrawIcon draw) : draw_(draw) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const bool off = mode == QIcon::Disabled;
    const auto group = off ? QPalette::Disabled : QPalette::Active;
    const QColor line = palette.color(group, QPalette::ButtonText);
    const Pen pen{*painter, line, off ? line : palette.color(QPalette::Highlight)};
    const double side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
    painter->scale(side / 24, side / 24);
    draw_(pen);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  // What a window hands to the desktop: few, as each is drawn while the window is waited for.
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {{16, 16}, {48, 48}}; }

  QIconEngine* clone() const override { return Make<DrawnIcon>(draw_); }

 private:
  DrawIcon draw_;
};

}  // namespace

QIcon MakeIcon(std::string_view name) {
  for (const auto& [key, draw] : kIcons) {
    if (key == name) return QIcon(Make<DrawnIcon>(draw));
  }
  return {};
}

QIcon WindowIcon() { return QIcon(Make<DrawnIcon>(WindowPicture)); }

}  // namespace tarvane::desktop
