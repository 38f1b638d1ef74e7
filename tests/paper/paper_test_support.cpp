#include "paper/paper_test_support.h"

#include <cmath>
#include <sstream>

#include "text/utf8.h"

namespace tarvane::paper {
namespace {

std::string Number(double value) {
  std::ostringstream text;
  text << std::round(value * 100) / 100;
  return text.str();
}

std::string Described(const RecordedText& text) {
  std::string line = Number(text.at.x) + "," + Number(text.at.y);
  if (text.look.blank != 0) line += "+" + Number(text.look.blank);
  return line + (text.font.bold ? " *" : " ") + text.text;
}

std::string Described(const RecordedShape& shape) {
  static constexpr const char* kNames[] = {"line", "box", "ellipse", "picture"};
  const Area& area = shape.area;
  return std::string(kNames[static_cast<int>(shape.kind)]) + " " + Number(area.left) + "," +
         Number(area.top) + " " + Number(area.right) + "," + Number(area.bottom);
}

}  // namespace

double SquareMeasure::WidthOf(const Font& font, std::string_view text) {
  return font.points * static_cast<double>(CountCharacters(text));
}

Area Columns(int columns, int lines) { return {0, 0, columns * 10.0, lines * 10.0}; }

std::vector<std::string> ItemsOf(const RecordedPage& page) {
  std::vector<std::string> lines;
  for (const auto& item : page.items) {
    lines.push_back(std::visit([](const auto& drawn) { return Described(drawn); }, item));
  }
  return lines;
}

std::vector<std::string> Formatted(const rich_text::Document& document, const Area& area) {
  SquareMeasure measure;
  Recorder recorder(measure, Paper{});
  Place place;
  do {
    if (place != Place{}) recorder.NewPage();
    place = FormatPage(document, measure, area, place, &recorder);
  } while (place.text < document.text.size() && recorder.pages().size() < 1000);
  std::vector<std::string> lines;
  for (const RecordedPage& page : recorder.pages()) {
    if (&page != &recorder.pages().front()) lines.emplace_back("---");
    for (std::string& line : ItemsOf(page)) lines.push_back(std::move(line));
  }
  return lines;
}

rich_text::Document Marked(std::string_view text) {
  std::string plain;
  std::vector<std::size_t> turns;
  for (const char c : text) {
    if (c == '{' || c == '}') {
      turns.push_back(plain.size());
    } else {
      plain += c;
    }
  }
  rich_text::Document document = rich_text::FromPlainText(plain);
  for (std::size_t index = 0; index < turns.size(); ++index) {
    rich_text::Run run{static_cast<std::uint32_t>(turns[index]), document.runs.front().style};
    run.style.bold = index % 2 == 0;
    if (run.begin == 0) document.runs.clear();
    if (run.begin < document.text.size()) document.runs.push_back(run);
  }
  return document;
}

}  // namespace tarvane::paper
