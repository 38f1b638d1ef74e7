#include "pdf/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <functional>
#include <iomanip>
#include <map>
#include <sstream>

#include "pdf/pdf_test_support.h"
#include "text/fault.h"

namespace tarvane::pdf {
namespace {

class Arguments {
 public:
  explicit Arguments(const std::string& line) : rest_(line) { rest_ >> name; }
  std::string name;

  bool AtText() { return !AtEnd() && rest_.peek() == '"'; }
  template <typename T>
  T Take() {
    if constexpr (std::is_same_v<T, std::string>) return Text();
    if constexpr (std::is_same_v<T, Setting>) return AtText() ? T(Text()) : T(Number());
    if constexpr (std::is_same_v<T, Color>) return AtText() ? T(Text()) : NumberedColor();
    if constexpr (std::is_same_v<T, std::vector<Point>>) return Points();
    if constexpr (std::is_arithmetic_v<T>) return static_cast<T>(Number());
  }

 private:
  bool AtEnd() { return (rest_ >> std::ws).eof(); }
  double Number() {
    std::string word;
    double number = 0;
    rest_ >> word;
    std::from_chars(word.data(), word.data() + word.size(), number);
    return number;
  }
  std::string Text() {
    std::string text;
    rest_ >> std::quoted(text);
    std::replace(text.begin(), text.end(), '~', '\n');
    return text.starts_with('@') ? ImageFile(text.substr(1)) : text;
  }
  Color NumberedColor() {
    const double first = Number();
    return AtEnd() ? Color(first) : Color(Rgb{first, Number(), Number()});
  }
  std::vector<Point> Points() {
    std::vector<Point> points;
    while (!AtEnd()) points.push_back({Take<double>(), Take<double>()});
    return points;
  }
  std::istringstream rest_;
};

using Operation = std::function<void(tqrPDF&, Arguments&)>;

template <typename... Parameters>
Operation Bound(void (tqrPDF::*operation)(Parameters...)) {
  return [operation](tqrPDF& document, Arguments& arguments) {
    std::tuple<std::decay_t<Parameters>...> taken{arguments.Take<std::decay_t<Parameters>>()...};
    std::apply([&](auto&... each) { (document.*operation)(each...); }, taken);
  };
}

const std::map<std::string, Operation>& Operations() {
  using T = tqrPDF;
  static const std::map<std::string, Operation> operations = {
      {"Fonts", [](tqrPDF& document, Arguments&) { document.PDFPathConfiguration(FontsFolder()); }},
      {"Format", Bound(static_cast<void (T::*)(const Setting&)>(&T::PDFFormatPage))},
      {"Size", Bound(static_cast<void (T::*)(double, double)>(&T::PDFFormatPage))},
      {"Init", Bound(&T::PDFInit)},
      {"Begin", Bound(&T::PDFBeginDoc)},
      {"NewPage", Bound(&T::PDFNewPage)},
      {"Author", Bound(&T::PDFAuthor)},
      {"Producer", Bound(&T::PDFProducer)},
      {"Creator", Bound(&T::PDFCreator)},
      {"Keywords", Bound(&T::PDFKeywords)},
      {"Subject", Bound(&T::PDFSubject)},
      {"Title", Bound(&T::PDFTitle)},
      {"Zoom", Bound(&T::PDFSetZoomMode)},
      {"Layout", Bound(&T::PDFSetLayoutMode)},
      {"Thumbs", Bound(&T::PDFUseThumbs)},
      {"Outlines", Bound(&T::PDFUseOutlines)},
      {"Preferences", Bound(&T::PDFSetViewerPreferences)},
      {"Watermark", Bound(&T::PDFWatermark)},
      {"Unit", Bound(&T::PDFSetUnit)},
      {"Orientation", Bound(&T::PDFOrientation)},
      {"PageWidth", Bound(&T::PDFPageWidth)},
      {"PageHeight", Bound(&T::PDFPageHeight)},
      {"Margins", Bound(&T::PDFSetMargins)},
      {"CellMargin", Bound(&T::PDFSetCellMargin)},
      {"TextColor", Bound(&T::PDFSetTextColor)},
      {"LineColor", Bound(&T::PDFSetLineColor)},
      {"DrawColor", Bound(&T::PDFSetDrawColor)},
      {"LineStyle", Bound(&T::PDFSetLineStyle)},
      {"LineWidth", Bound(&T::PDFSetLineWidth)},
      {"DrawMode", Bound(&T::PDFSetDrawMode)},
      {"LineHor", Bound(&T::PDFDrawLineHor)},
      {"LineVer", Bound(&T::PDFDrawLineVer)},
      {"Line", Bound(&T::PDFDrawLine)},
      {"Rectangle", Bound(&T::PDFDrawRectangle)},
      {"Ellipse", Bound(&T::PDFDrawEllipse)},
      {"Polygon", Bound(&T::PDFDrawPolygon)},
      {"Font", Bound(&T::PDFSetFont)},
      {"Rotation", Bound(&T::PDFSetRotation)},
      {"Text", Bound(&T::PDFTextOut)},
      {"Alignment", Bound(&T::PDFSetAlignement)},
      {"Border", Bound(&T::PDFSetBorder)},
      {"Fill", Bound(&T::PDFSetFill)},
      {"Cell", Bound(&T::PDFCell)},
      {"Image", Bound(&T::PDFImage)},
      {"Link", Bound(&T::PDFLink)},
      {"Bookmark", Bound(&T::PDFSetBookmark)}};
  return operations;
}

}  // namespace

std::string Call(tqrPDF& document, const std::string& line) {
  Arguments arguments(line);
  const auto found = Operations().find(arguments.name);
  if (found == Operations().end()) return "unknown: " + line + "\r\n";
  try {
    found->second(document, arguments);
  } catch (const Fault& fault) {
    return std::string("fault: ") + fault.what() + "\r\n";
  }
  return "";
}

std::vector<ScriptCase> ReadScript(const std::string& file) {
  std::vector<ScriptCase> cases;
  std::istringstream lines(FileBytes(TARVANE_TEST_DATA "/golden/" + file));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with("== ")) cases.push_back({line.substr(3), {}});
    if (line.starts_with("> ")) cases.back().calls.push_back(line.substr(2));
  }
  return cases;
}

}  // namespace tarvane::pdf
