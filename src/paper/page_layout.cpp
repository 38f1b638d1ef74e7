#include "paper/page_layout.h"

#include <algorithm>
#include <limits>

#include "paper/break_rules.h"

namespace tarvane::paper {
namespace {

using rich_text::Paragraph;
using rich_text::ParagraphStyle;

constexpr std::size_t kDone = std::numeric_limits<std::size_t>::max();
constexpr double kCellPadding = 5.4;
constexpr double kLeastCell = 12;
constexpr std::size_t kMostCells = 64;  // those of a wider row stand below each other

}  // namespace

Place PageLayout::LayOut(const Place& from) {
  Flow page{area_.left, area_.right, area_.top, area_.bottom};
  std::size_t paragraph = document_.ParagraphAt(from.text);
  std::size_t at = from.text;
  page.keeps_gap = at == 0 || document_.StyleOf(document_.paragraphs[paragraph]).page_break_before;
  std::vector<std::size_t> goes_on = from.cells;
  Place end;
  while (paragraph < document_.paragraphs.size()) {
    const Paragraph& begun = document_.paragraphs[paragraph];
    if (!page.empty && at == begun.begin && document_.StyleOf(begun).page_break_before) return {at, {}};
    if (InTable(paragraph)) {
      if (!LayOutRow(paragraph, goes_on, page, end)) return end;
      goes_on.clear();
    } else {
      at = LayOutParagraph(paragraph, at, page);
      if (at != kDone) return {at, {}};
      ++paragraph;
    }
    if (paragraph < document_.paragraphs.size()) at = document_.paragraphs[paragraph].begin;
  }
  return {document_.text.size(), {}};
}

std::size_t PageLayout::LayOutParagraph(std::size_t number, std::size_t from, Flow& flow) {
  const Paragraph& paragraph = document_.paragraphs[number];
  const ParagraphStyle& style = document_.StyleOf(paragraph);
  const LineSpace space = SpaceOf(style, flow.left, flow.right, area_.height());
  const std::size_t end = document_.ParagraphEnd(number);
  const bool gap_counts = from == paragraph.begin && (!flow.empty || flow.keeps_gap);
  double gap = gap_counts ? Sane(PointsOf(style.before)) : 0;
  for (bool open = true; open;) {
    const Line& line = lines_.Build(style, space, paragraph.begin, from, end);
    const double rest = flow.bottom - flow.y - line.height;
    if (flow.empty) gap = std::clamp(gap, 0.0, std::max(rest, 0.0));
    if (!flow.empty && gap > rest + kSlack) return from;
    flow.y += gap;
    gap = 0;
    if (flow.drawn && surface_ != nullptr) DrawLine(line, flow);
    flow.y += line.height;
    flow.empty = false;
    from = line.next;
    open = !line.ends_paragraph;
  }
  flow.y += Sane(PointsOf(style.after));
  return kDone;
}

void PageLayout::DrawLine(const Line& line, const Flow& flow) {
  const double base_line = flow.y + line.ascent;
  bool written = false;
  for (std::size_t index = 0; index < line.pieces.size(); ++index) {
    const LinePiece& piece = line.pieces[index];
    DrawPiece(piece, base_line, line.hyphen && index + 1 == line.pieces.size());
    written = written || piece.kind != LinePiece::Kind::kTab;
  }
  if (written) return;
  const std::size_t place = std::min(line.next, document_.text.size());
  surface_->DrawText({line.x, base_line}, lines_.looks().Of(document_.StyleAt(place)).font, "");
}

void PageLayout::DrawPiece(const LinePiece& piece, double base_line, bool hyphen) {
  if (piece.kind == LinePiece::Kind::kPicture) {
    if (const rich_text::Picture* picture = lines_.PictureAt(piece.begin)) {
      surface_->DrawPicture(*picture, {piece.x, base_line - piece.height, piece.x + piece.width, base_line});
    }
    return;
  }
  const FontLook& look = lines_.looks().Of(piece.style);
  if (piece.kind == LinePiece::Kind::kTab) {
    const bool bears_line = look.font.underline || look.font.strike;
    if (!bears_line || piece.width <= 0) return;
    surface_->DrawText({piece.x, base_line}, look.font, " ", {piece.style.color, piece.width - look.blank});
    return;
  }
  std::string_view text = std::string_view(document_.text).substr(piece.begin, piece.end - piece.begin);
  if (piece.hidden) text = WithoutHidden(text, seen_);
  if (hyphen) text = seen_ += '-';
  surface_->DrawText({piece.x, base_line}, look.font, text, {piece.style.color, piece.blank});
}

bool PageLayout::InTable(std::size_t number) const {
  const std::int32_t row = document_.paragraphs[number].row;
  if (row < 0 || static_cast<std::size_t>(row) >= document_.rows.size()) return false;
  const std::size_t cells = document_.rows[static_cast<std::size_t>(row)].cells.size();
  return cells > 0 && cells <= kMostCells;
}

std::size_t PageLayout::RowBegin(std::size_t number) const {
  const auto row = document_.paragraphs[number].row;
  const auto last = document_.paragraphs.begin() + static_cast<std::ptrdiff_t>(number);
  const auto first = std::partition_point(document_.paragraphs.begin(), last,
                                          [&](const Paragraph& other) { return other.row != row; });
  return static_cast<std::size_t>(first - document_.paragraphs.begin());
}

std::vector<PageLayout::Cell> PageLayout::CellsOf(std::size_t first) const {
  const auto begin = document_.paragraphs.begin();
  const auto row = document_.paragraphs[first].row;
  const auto behind =
      std::partition_point(begin + static_cast<std::ptrdiff_t>(first), document_.paragraphs.end(),
                           [&](const Paragraph& other) { return other.row == row; });
  std::vector<Cell> cells;
  for (auto at = begin + static_cast<std::ptrdiff_t>(first); at != behind;) {
    const auto number = at->cell;
    const auto cell_end =
        std::partition_point(at + 1, behind, [&](const Paragraph& other) { return other.cell <= number; });
    Cell cell;
    cell.first = static_cast<std::size_t>(at - begin);
    cell.behind = static_cast<std::size_t>(cell_end - begin);
    cell.from = at->begin;
    cells.push_back(cell);
    at = cell_end;
  }
  return cells;
}

// A row that is wider than the area is drawn narrower.
void PageLayout::PlaceCells(const rich_text::TableRow& row, std::vector<Cell>& cells) const {
  const double widest = std::max(3 * area_.width(), kLeastCell);
  std::vector<double> edges{
      std::clamp(PointsOf(row.left), std::min(-area_.left, 0.0), std::max(area_.width(), 0.0))};
  for (const rich_text::TableCell& cell : row.cells) {
    edges.push_back(std::max(std::min(PointsOf(cell.right), widest), edges.back() + kLeastCell));
  }
  const double begin = edges.front();
  const double room = std::max(area_.width() + kCellPadding - begin, kLeastCell);
  const double scale = std::min(1.0, room / (edges.back() - begin));
  for (std::size_t index = 0; index < cells.size(); ++index) {
    const std::size_t number = std::min<std::size_t>(
        std::max<std::size_t>(document_.paragraphs[cells[index].first].cell, index), row.cells.size() - 1);
    cells[index].left = area_.left + begin + (edges[number] - begin) * scale;
    cells[index].right = area_.left + begin + (edges[number + 1] - begin) * scale;
    cells[index].borders = row.cells[number].borders;
  }
}

std::size_t PageLayout::LayOutCell(const Cell& cell, Flow& flow) {
  const double padding = cell.right - cell.left > 3 * kCellPadding ? kCellPadding : 0;
  flow.left = cell.left + padding;
  flow.right = cell.right - padding;
  flow.keeps_gap = cell.from == document_.paragraphs[cell.first].begin;
  std::size_t at = cell.from;
  for (std::size_t paragraph = document_.ParagraphAt(at); paragraph < cell.behind; ++paragraph) {
    at = LayOutParagraph(paragraph, std::max<std::size_t>(at, document_.paragraphs[paragraph].begin), flow);
    if (at != kDone) return at;
    at = 0;
  }
  return kDone;
}

// As if it stood alone on a page.
double PageLayout::HeightOfRow(const std::vector<Cell>& cells, bool& whole) {
  double bottom = area_.top;
  whole = true;
  for (const Cell& cell : cells) {
    if (cell.from == kDone) continue;
    Flow flow{.y = area_.top, .bottom = area_.bottom, .drawn = false};
    whole = LayOutCell(cell, flow) == kDone && whole;
    bottom = std::max(bottom, flow.y);
  }
  return bottom - area_.top;
}

bool PageLayout::LayOutRow(std::size_t& paragraph, const std::vector<std::size_t>& goes_on, Flow& page,
                           Place& end) {
  const std::size_t first = goes_on.empty() ? paragraph : RowBegin(paragraph);
  std::vector<Cell> cells = CellsOf(first);
  PlaceCells(document_.rows[static_cast<std::size_t>(document_.paragraphs[first].row)], cells);
  for (std::size_t index = 0; index < std::min(goes_on.size(), cells.size()); ++index) {
    cells[index].from = goes_on[index] < document_.text.size() ? goes_on[index] : kDone;
  }
  bool whole = true;
  const double height = HeightOfRow(cells, whole);
  const bool fits = page.empty || (whole && page.y + height <= page.bottom + kSlack);
  if (!fits) {
    end = {document_.paragraphs[first].begin, {}};
    return false;
  }
  const double top = page.y;
  page.empty = false;
  page.y += height;
  end = DrawCells(cells, top, whole ? page.y : page.bottom);
  paragraph = cells.back().behind;
  return end.text >= document_.text.size();
}

// Gives where the row goes on; the end of the text where it doesn't.
Place PageLayout::DrawCells(std::vector<Cell>& cells, double top, double bottom) {
  Place end{document_.text.size(), {}};
  for (Cell& cell : cells) {
    if (cell.from != kDone) {
      Flow flow{.y = top, .bottom = bottom};
      cell.from = LayOutCell(cell, flow);
    }
    end.cells.push_back(std::min(cell.from, document_.text.size()));
    end.text = std::min(end.text, end.cells.back());
  }
  if (surface_ != nullptr) DrawBorders(cells, top, std::max(bottom, top));
  if (end.text >= document_.text.size()) end.cells.clear();
  return end;
}

void PageLayout::DrawBorders(const std::vector<Cell>& cells, double top, double bottom) {
  const Stroke stroke;
  for (const Cell& cell : cells) {
    const double left = cell.left;
    const double right = cell.right;
    if (cell.borders & rich_text::kTopSide) surface_->DrawLine({left, top}, {right, top}, stroke);
    if (cell.borders & rich_text::kLeftSide) surface_->DrawLine({left, top}, {left, bottom}, stroke);
    if (cell.borders & rich_text::kBottomSide) surface_->DrawLine({left, bottom}, {right, bottom}, stroke);
    if (cell.borders & rich_text::kRightSide) surface_->DrawLine({right, top}, {right, bottom}, stroke);
  }
}

}  // namespace tarvane::paper
