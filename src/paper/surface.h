#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rich_text/document.h"

// Places and lengths are points (1/72 inch), to the right of and down from the upper left corner of the sheet
// of paper, whatever of it can be printed on.
namespace tarvane::paper {

using rich_text::Color;
using rich_text::Picture;

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};
struct Size {
  double width = 0;
  double height = 0;
  bool operator==(const Size&) const = default;
};
struct Edges {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  bool operator==(const Edges&) const = default;
};
struct Area {
  double left = 0;
  double top = 0;
  double right = 0;  // not below left
  double bottom = 0;
  double width() const { return right - left; }
  double height() const { return bottom - top; }
  bool operator==(const Area&) const = default;
};

// A sheet as it lies: wider than high where it is landscape.
struct Paper {
  Size size{595.28, 841.89};  // A4
  Edges unprintable;          // margins that the printer can't reach
  bool operator==(const Paper&) const = default;
};

struct Font {
  std::string name = "Arial";  // one that isn't there is replaced by one that is
  double points = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool operator==(const Font&) const = default;
};

struct Extent {
  double ascent = 0;   // above the base line
  double descent = 0;  // below it, above 0
  double height() const { return ascent + descent; }
};

// Tells how large texts are. The same on screen, printer and in PDF files of one face of the program, so that
// pages end where the preview showed it.
class Measure {
 public:
  virtual ~Measure() = default;
  virtual Extent ExtentOf(const Font& font) = 0;
  // `text`: UTF-8 without line ends and tabs.
  virtual double WidthOf(const Font& font, std::string_view text) = 0;
};

// The average character: what columns of characters are as wide as.
double ColumnWidth(Measure& measure, const Font& font);

struct Stroke {
  double width = 0.5;
  Color color;
};

struct TextLook {
  Color color;
  double blank = 0;  // that much wider is each blank, where a line is spread
  double angle = 0;  // degrees against the clock, around the beginning
};

// A sheet of paper that is drawn on, page after page. Whoever draws doesn't know whether it is a printer, a
// picture, a PDF file or a record. Never faults for what is drawn: what lies outside is cut off, fonts that
// are missing are replaced.
class Surface : public Measure {
 public:
  virtual const Paper& paper() const = 0;
  // The page so far is done. The first one is there from the start.
  virtual void NewPage() = 0;

  // `at`: where the base line begins. An empty text draws nothing; a record keeps its line.
  virtual void DrawText(Point at, const Font& font, std::string_view text, const TextLook& look = {}) = 0;
  virtual void DrawLine(Point from, Point to, const Stroke& stroke) = 0;
  // Null: no outline, no filling.
  virtual void DrawBox(const Area& area, const Stroke* outline, const Color* fill) = 0;
  virtual void DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) = 0;
  // Stretched to the area. A picture that can't be read leaves a frame.
  virtual void DrawPicture(const Picture& picture, const Area& area) = 0;
};

// Something to print, or to look at: pages that are drawn when they are needed, in any order.
class Pages {
 public:
  virtual ~Pages() = default;
  virtual int Count() const = 0;  // 1 or more
  virtual const Paper& paper() const = 0;
  virtual void Draw(int page, Surface& surface) const = 0;  // from 0
  // Where texts begin: transcripts count columns from there.
  virtual double LeftOfText() const { return paper().unprintable.left; }
};

}  // namespace tarvane::paper
