#pragma once

#include <span>
#include <vector>

#include "paper/line_builder.h"
#include "paper/rich_text_pages.h"

namespace tarvane::paper {

// Lays out pages of a document in one area, each by itself.
class PageLayout {
 public:
  // A null surface: nothing is drawn. All else must outlive it.
  PageLayout(const rich_text::Document& document, FontLooks& looks, std::span<const std::uint32_t> pictures,
             const Area& area, Surface* surface)
      : document_(document), lines_(document, looks, pictures), area_(area), surface_(surface) {}

  Place LayOut(const Place& from);

 private:
  // A column of text on its way down.
  struct Flow {
    double left = 0;
    double right = 0;
    double y = 0;
    double bottom = 0;
    bool empty = true;      // nothing stands in it yet: what comes next fits
    bool keeps_gap = true;  // the space before a paragraph counts at the top, too
    bool drawn = true;
  };
  // A table cell's paragraphs, and where it stands.
  struct Cell {
    std::size_t first = 0;
    std::size_t behind = 0;
    double left = 0;
    double right = 0;
    std::uint8_t borders = 0;
    std::size_t from = 0;  // in the text; the end of the text where all of it was laid out before
  };

  bool InTable(std::size_t paragraph) const;
  std::size_t RowBegin(std::size_t paragraph) const;
  std::vector<Cell> CellsOf(std::size_t first) const;
  void PlaceCells(const rich_text::TableRow& row, std::vector<Cell>& cells) const;

  // Both give the place of what didn't fit, kDone where all did.
  std::size_t LayOutParagraph(std::size_t paragraph, std::size_t from, Flow& flow);
  std::size_t LayOutCell(const Cell& cell, Flow& flow);
  // The row that begins at `paragraph`, which then moves behind it; or the place where the page ends.
  bool LayOutRow(std::size_t& paragraph, const std::vector<std::size_t>& goes_on, Flow& page, Place& end);
  double HeightOfRow(const std::vector<Cell>& cells, bool& whole);
  Place DrawCells(std::vector<Cell>& cells, double top, double bottom);

  void DrawLine(const Line& line, const Flow& flow);
  void DrawPiece(const LinePiece& piece, double base_line, bool hyphen);
  void DrawBorders(const std::vector<Cell>& cells, double top, double bottom);

  const rich_text::Document& document_;
  LineBuilder lines_;
  Area area_;
  Surface* surface_;
  std::string seen_;  // room for a text without its hidden characters
};

}  // namespace tarvane::paper
