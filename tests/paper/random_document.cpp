#include "paper/random_document.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "paper/rich_text_pages.h"
#include "text/utf8.h"

namespace tarvane::paper {
namespace {

using rich_text::Document;
using rich_text::ParagraphStyle;

constexpr auto kCharacters =
    std::to_array<std::string_view>({"\u00AD", "\u200B", "\u2028", "\u00A0", "窗", "。", "「", "e\u0301",
                                     "\u0301", "👍🏽", "\u2011", "—", "é", "\uFFFC", "ﬁ", "\u200D"});
constexpr std::string_view kUndrawn[] = {"\u00AD", "\u200B", "\u2028", " ", "\t", "\n", "-"};
constexpr auto kLengths = std::to_array<std::int32_t>(
    {0, 0, 0, 20, 100, 720, -360, -100, 2000, 20000, -20000, std::numeric_limits<std::int32_t>::max(),
     std::numeric_limits<std::int32_t>::min(), 240, -240, 1});
constexpr auto kPlaces = std::to_array<double>({0, 10, 36, 72, 100, 250, 500, 800, -50, 1e9, -1e9,
                                                std::numeric_limits<double>::infinity(),
                                                std::numeric_limits<double>::quiet_NaN(), 5, 1, 700});

class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
  bool empty() const { return bytes_.empty(); }
  unsigned Take() {
    if (bytes_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte;
  }
  template <typename Table>
  auto From(const Table& table) {
    return table[Take() % table.size()];
  }

 private:
  std::string_view bytes_;
};

ParagraphStyle TakeStyle(Bytes& bytes) {
  ParagraphStyle style;
  const unsigned flags = bytes.Take();
  style.alignment = static_cast<rich_text::Alignment>(flags % 4);
  style.page_break_before = flags / 4 % 8 == 7;
  for (std::int32_t* length :
       {&style.left, &style.right, &style.first_line, &style.before, &style.after, &style.line_height}) {
    *length = bytes.From(kLengths);
  }
  for (unsigned count = flags / 32; count > 0; --count) {
    const unsigned kind = bytes.Take();
    style.tabs.push_back({bytes.From(kLengths), static_cast<rich_text::TabKind>(kind % 4)});
  }
  std::ranges::sort(style.tabs, {}, &rich_text::TabStop::at);
  return style;
}

void BeginRun(Document& document, unsigned byte) {
  rich_text::Run run{static_cast<std::uint32_t>(document.text.size()), document.runs.back().style};
  run.style.half_points = byte == 255 ? 65535 : static_cast<std::uint16_t>(byte % 64);
  run.style.bold = byte % 2 != 0;
  run.style.underline = byte % 3 == 0;
  if (run.begin == document.runs.back().begin) document.runs.pop_back();
  if (document.runs.empty() || document.runs.back().style != run.style) document.runs.push_back(run);
}

enum class Begins { kParagraph, kRow, kCell, kBody };

void BeginParagraph(Document& document, Begins what, Bytes& bytes) {
  rich_text::Paragraph paragraph = document.paragraphs.back();
  const unsigned byte = bytes.Take();
  document.text += '\n';
  paragraph.begin = static_cast<std::uint32_t>(document.text.size());
  paragraph.style = byte % static_cast<unsigned>(document.paragraph_styles.size());
  if (what == Begins::kRow) {
    paragraph.row = static_cast<std::int32_t>(document.rows.size());
    paragraph.cell = 0;
    rich_text::TableRow& row = document.rows.emplace_back();
    row.left = bytes.From(kLengths);
    row.cells.push_back({bytes.From(kLengths), static_cast<std::uint8_t>(byte)});
  } else if (what == Begins::kBody) {
    paragraph.row = -1;
    paragraph.cell = 0;
  } else if (what == Begins::kCell && paragraph.row >= 0) {
    ++paragraph.cell;
    document.rows.back().cells.push_back({bytes.From(kLengths), static_cast<std::uint8_t>(byte)});
  }
  document.paragraphs.push_back(paragraph);
}

void TakeText(Document& document, Bytes& bytes) {
  while (!bytes.empty()) {
    const unsigned byte = bytes.Take();
    if (byte >= 0x80) {
      const std::string_view character = kCharacters[byte % kCharacters.size()];
      document.text += character;
      if (character == rich_text::kPictureSign && byte < 0xF0) {
        document.pictures.push_back({{}, "", bytes.From(kLengths), bytes.From(kLengths)});
      }
    } else if (byte == '\n') {
      BeginParagraph(document, Begins::kParagraph, bytes);
    } else if (byte >= 1 && byte <= 3) {
      BeginParagraph(document, static_cast<Begins>(byte), bytes);
    } else if (byte < 8) {
      BeginRun(document, bytes.Take());
    } else {
      document.text += static_cast<char>(byte < ' ' ? "\t -"[byte % 3] : byte);
    }
  }
  if (document.runs.back().begin >= document.text.size() && document.runs.size() > 1)
    document.runs.pop_back();
}

// What was drawn.
class Seen : public Surface {
 public:
  explicit Seen(int kind) : kind_(kind) {}
  Extent ExtentOf(const Font& font) override {
    return {Odd(font.points * 0.8), kind_ == 5 ? -Odd(font.points) : Odd(font.points * 0.2)};
  }
  double WidthOf(const Font& font, std::string_view measured) override {
    return Odd(font.points * static_cast<double>(CountCharacters(measured)) / 2);
  }
  const Paper& paper() const override { return paper_; }
  void NewPage() override {}
  void DrawText(Point, const Font&, std::string_view drawn, const TextLook&) override { text += drawn; }
  void DrawLine(Point, Point, const Stroke&) override {}
  void DrawBox(const Area&, const Stroke*, const Color*) override {}
  void DrawEllipse(const Area&, const Stroke*, const Color*) override {}
  void DrawPicture(const Picture&, const Area&) override { text += rich_text::kPictureSign; }

  std::string text;

 private:
  double Odd(double number) const {
    static constexpr std::array kNumbers = {std::numeric_limits<double>::quiet_NaN(),
                                            std::numeric_limits<double>::infinity(), 0.0, -7.0, 1e300};
    return kind_ > 0 && kind_ < 6 ? kNumbers[static_cast<std::size_t>(kind_ - 1)] : number;
  }

  Paper paper_;
  int kind_;
};

std::string Drawable(std::string_view text) {
  std::string drawable;
  while (!text.empty()) {
    const auto skipped = std::ranges::find_if(kUndrawn, [&](auto sign) { return text.starts_with(sign); });
    if (skipped == std::end(kUndrawn)) drawable += text.front();
    text.remove_prefix(skipped == std::end(kUndrawn) ? 1 : skipped->size());
  }
  return drawable;
}

}  // namespace

RandomDocument DocumentOf(std::string_view bytes_of) {
  Bytes bytes(bytes_of);
  RandomDocument random;
  random.measure = static_cast<int>(bytes.Take() % 16);
  random.area = {bytes.From(kPlaces), bytes.From(kPlaces), bytes.From(kPlaces), bytes.From(kPlaces)};
  random.document.paragraph_styles.front() = TakeStyle(bytes);
  random.document.paragraph_styles.push_back(TakeStyle(bytes));
  random.document.paragraph_styles.push_back(ParagraphStyle{});
  TakeText(random.document, bytes);
  return random;
}

bool PlacesEachCharacterOnce(const RandomDocument& random) {
  const Document& document = random.document;
  Seen seen(random.measure);
  Place place;
  do {
    Place next = FormatPage(document, seen, random.area, place, &seen);
    if (!document.text.empty() && next.text <= place.text) return false;
    place = std::move(next);
  } while (place.text < document.text.size());
  std::string wanted = Drawable(document.text);
  std::string drawn = Drawable(seen.text);
  if (!document.rows.empty()) {
    std::ranges::sort(wanted);
    std::ranges::sort(drawn);
  }
  const Size size{random.area.right, random.area.bottom};
  const RichTextPages pages(document, seen, {size, {}}, {random.area.left, random.area.top, 0, 0});
  seen.text.clear();
  for (int page = 0; page < pages.Count(); ++page) pages.Draw(page, seen);
  std::string on_pages = Drawable(seen.text);
  if (!document.rows.empty()) std::ranges::sort(on_pages);
  return drawn == wanted && on_pages == wanted;
}

}  // namespace tarvane::paper
