#include "pdf/document_objects.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "pdf/line_buffer.h"
#include "pdf/outlines.h"
#include "pdf/text_encoding.h"
#include "text_number/text_number.h"

namespace tarvane::pdf {
namespace {

// What an open action names in place of the first page: its length object. Viewers open the first page all
// the same, and the files have always said so.
constexpr int kOpenedObject = 3;
// How the open action shows its page, by ViewSettings::Zoom; empty for no action.
constexpr std::array<std::string_view, 4> kZooms = {"/Fit", "/FitH null", "/XYZ null null 1", ""};
// The fonts with characters of their own, which no encoding of letters fits.
constexpr std::array<std::string_view, 2> kSymbolFonts = {"Symbol", "ZapfDingbats"};
constexpr std::array<std::string_view, 4> kLayoutLines = {"/PageLayout /SinglePage", "/PageLayout /OneColumn",
                                                          "/PageLayout /TwoColumnLeft", ""};
// From the lowest bit of the preferences up.
constexpr std::array<std::string_view, 6> kPreferenceLines = {"/HideMenubar true",  "/HideToolbar true",
                                                              "/HideWindowUI true", "/DisplayDocTitle true",
                                                              "/CenterWindow true", "/FitWindow true"};

std::string DateText(const DateTime& time) {
  char text[80];
  std::snprintf(text, sizeof text, "%04d%02d%02d%02d%02d%02d", YearOf(time.day), MonthOf(time.day),
                DayOfMonth(time.day), time.hour, time.minute, time.second);
  return text;
}

// The numbers that the objects at the end refer to each other by.
struct Numbers {
  std::vector<int> fonts;
  int pages = 0;
  int resources = 0;
  std::vector<int> images;
  std::vector<int> page_objects;
  int outline_root = 0;  // 0 without bookmarks
};

// A page object's number, told before it is written: behind the pages object stand the resources and the
// images.
int FuturePageNumber(int pages_object, size_t images, size_t place) {
  return pages_object + 1 + static_cast<int>(images) + static_cast<int>(place);
}

void WriteFonts(ObjectFile& file, const DocumentParts& parts, Numbers& numbers) {
  for (size_t index = 0; index < parts.fonts.size(); ++index) {
    numbers.fonts.push_back(file.NextNumber());
    LineBuffer object;
    object.Line(numbers.fonts.back(), " 0 obj").Line("<< /Type /Font").Line("/Subtype /", "Type1");
    object.Line("/Name /F", index).Line("/BaseFont /", NameBody(parts.fonts[index]));
    const bool symbols =
        std::find(kSymbolFonts.begin(), kSymbolFonts.end(), parts.fonts[index]) != kSymbolFonts.end();
    if (!parts.strict || !symbols) object.Line("/Encoding /", "WinAnsiEncoding");
    object.Line(">>").Line("endobj");
    file.Write({object.bytes()});
  }
}

void WritePages(ObjectFile& file, const DocumentParts& parts, Numbers& numbers) {
  numbers.pages = file.NextNumber();
  LineBuffer object;
  object.Line(numbers.pages, " 0 obj").Line("<< /Type /Pages").Line("/Kids [");
  for (size_t place = 1; place <= parts.pages.size(); ++place) {
    object.Line(FuturePageNumber(numbers.pages, parts.images.size(), place), " 0 R");
  }
  object.Line("]").Line("/Count ", parts.pages.size()).Line(">>").Line("endobj");
  file.Write({object.bytes()});
}

void WriteResources(ObjectFile& file, const DocumentParts& parts, Numbers& numbers) {
  numbers.resources = file.NextNumber();
  for (size_t place = 1; place <= parts.images.size(); ++place) {
    numbers.images.push_back(numbers.resources + static_cast<int>(place));
  }
  LineBuffer object;
  object.Line(numbers.resources, " 0 obj").Line("<< /ProcSet [ /PDF /Text /ImageC]").Line("/XObject << ");
  for (size_t index = 0; index < numbers.images.size(); ++index) {
    object.Line("/ImgJPEG", index + 1, " ", numbers.images[index], " 0 R");
  }
  object.Line(">>").Line("/Font << ");
  for (size_t index = 0; index < numbers.fonts.size(); ++index) {
    object.Line("/F", index, " ", numbers.fonts[index], " 0 R ");
  }
  object.Line(">>").Line(">>").Line("endobj");
  file.Write({object.bytes()});
}

void WriteImages(ObjectFile& file, const DocumentParts& parts) {
  size_t place = 0;
  for (const Image& image : parts.images) {
    LineBuffer head;
    head.Line(file.NextNumber(), " 0 obj").Line("<</Type /XObject").Line("/Subtype /Image");
    head.Line("/Filter [/", image.pixels.empty() ? "DCTDecode" : "FlateDecode", " ]");
    head.Line("/Width ", image.info.width).Line("/Height ", image.info.height);
    if (image.pixels.empty()) {
      head.Line("/ColorSpace /", image.info.color_space);
    } else {
      head.Line(image.pixels);
    }
    head.Line("/BitsPerComponent ", image.info.bits_per_component);
    head.Line("/Length ", image.bytes.size()).Line("/Name /ImgJPEG", ++place, ">>").Line("stream");
    LineBuffer tail;
    tail.Line().Line("endstream").Line("endobj");
    file.Write({head.bytes(), image.bytes, tail.bytes()});
  }
}

void AppendLinks(LineBuffer& object, const std::vector<Link>& links, bool strict) {
  if (links.empty()) return;
  object.Line("/Annots [");
  for (const Link& link : links) {
    const std::string address = strict ? ToUri(link.address) : ToWinAnsi(link.address);
    object.Line("<</Type /Annot /Subtype /Link /Rect [", Fixed{link.area.left}, " ", Fixed{link.area.bottom},
                " ", Fixed{link.area.right}, " ", Fixed{link.area.top}, "] /Border [0 0 0] ",
                "/A <</S /URI /URI (", StringBody(address), ")>>>>");
  }
  object.Line("]");
}

void WritePageObjects(ObjectFile& file, const DocumentParts& parts, Numbers& numbers) {
  for (const Page& page : parts.pages) {
    numbers.page_objects.push_back(file.NextNumber());
    LineBuffer object;
    object.Line(numbers.page_objects.back(), " 0 obj").Line("<< /Type /Page");
    object.Line("/Parent ", numbers.pages, " 0 R")
        .Line("/MediaBox [ 0 0 ", page.width, " ", page.height, "]");
    object.Line("/Resources ", numbers.resources, " 0 R");
    AppendLinks(object, page.links, parts.strict);
    // The stream of page p is object 2p, and its length object the one behind it.
    object.Line("/Contents ", 2 * numbers.page_objects.size(), " 0 R").Line(">>").Line("endobj");
    file.Write({object.bytes()});
  }
}

int PageObjectOf(const Bookmark& bookmark, const Numbers& numbers) {
  const auto page = static_cast<size_t>(bookmark.page);
  return page >= 1 && page <= numbers.page_objects.size() ? numbers.page_objects[page - 1] : 0;
}

void WriteOutlines(ObjectFile& file, const DocumentParts& parts, Numbers& numbers) {
  if (parts.bookmarks.empty()) return;
  std::vector<int> levels;
  for (const Bookmark& bookmark : parts.bookmarks) levels.push_back(bookmark.level);
  const Outline outline = LinkOutline(levels);
  const int first_number = file.last_number() + 1;
  numbers.outline_root = first_number + static_cast<int>(levels.size());
  const auto number_of = [&](int index) { return index < 0 ? numbers.outline_root : first_number + index; };
  for (size_t index = 0; index < parts.bookmarks.size(); ++index) {
    const Bookmark& bookmark = parts.bookmarks[index];
    const OutlineNode& node = outline.nodes[index];
    const std::pair<std::string_view, int> relations[] = {
        {"/Prev ", node.previous}, {"/Next ", node.next}, {"/First ", node.first}, {"/Last ", node.last}};
    LineBuffer object;
    object.Line(file.NextNumber(), " 0 obj").Line("<</Title (", StringBody(ToPdfDoc(bookmark.title)), ")");
    object.Line("/Parent ", number_of(node.parent), " 0 R");
    for (const auto& [key, other] : relations) {
      if (other >= 0) object.Line(key, number_of(other), " 0 R");
    }
    object.Line("/Dest [", PageObjectOf(bookmark, numbers), " 0 R /XYZ 0 ", Fixed{bookmark.y}, " null]");
    // A negative count closes the bookmark; one without any below it has none.
    if (parts.strict && node.children > 0) object.Line("/Count ", -node.children);
    object.Line(parts.strict ? ">>" : "/Count 0>>").Line("endobj");
    file.Write({object.bytes()});
  }
  LineBuffer root;
  root.Line(file.NextNumber(), " 0 obj").Line("<</Type /Outlines /First ", number_of(outline.first), " 0 R");
  if (parts.strict) root.Line("/Count ", outline.children);
  root.Line("/Last ", number_of(outline.last), " 0 R>>").Line("endobj");
  file.Write({root.bytes()});
}

void AppendView(LineBuffer& object, const DocumentParts& parts, const Numbers& numbers) {
  const ViewSettings& view = parts.view;
  const int opened = parts.strict ? numbers.page_objects.front() : kOpenedObject;
  if (view.zoom == ViewSettings::kPercentage) {
    object.Line("/OpenAction [", opened, " 0 R /XYZ null null ", NumberText(view.percentage / 100), "]");
  } else if (const auto zoom = kZooms[static_cast<size_t>(view.zoom)]; !zoom.empty()) {
    object.Line("/OpenAction [", opened, " 0 R ", zoom, "]");
  }
  if (const auto line = kLayoutLines[static_cast<size_t>(view.layout)]; !line.empty()) object.Line(line);
  const bool outlines = view.use_outlines && numbers.outline_root != 0;
  if (view.use_thumbs && !(parts.strict && outlines)) object.Line("/PageMode /UseThumbs");
  if (outlines) object.Line("/Outlines ", numbers.outline_root, " 0 R").Line("/PageMode /UseOutlines");
  if (!view.preferences) return;
  object.Line("/ViewerPreferences<<");
  for (size_t bit = 0; bit < kPreferenceLines.size(); ++bit) {
    if (*view.preferences & 1 << bit) object.Line(kPreferenceLines[bit]);
  }
  object.Line(">>");
}

int WriteCatalog(ObjectFile& file, const DocumentParts& parts, const Numbers& numbers) {
  const int number = file.NextNumber();
  LineBuffer object;
  object.Line(number, " 0 obj").Line("<<").Line("/Type /Catalog").Line("/Pages ", numbers.pages, " 0 R");
  AppendView(object, parts, numbers);
  object.Line(">>").Line("endobj");
  file.Write({object.bytes()});
  return number;
}

}  // namespace

void WriteInformation(ObjectFile& file, const Information& information, const DateTime& created,
                      bool strict) {
  const auto entry = [](const std::string& text) { return StringBody(ToPdfDoc(text)); };
  LineBuffer object;
  object.Line(file.NextNumber(), " 0 obj").Line("<<");
  object.Line("/Producer (", entry(information.producer), ")");
  object.Line("/Author (", entry(information.author), ")");
  object.Line("/CreationDate (D:", DateText(created), ")");
  object.Line("/Creator (", entry(information.creator), ")");
  object.Line("/Keywords (", entry(information.keywords), ")");
  object.Line("/Subject (", entry(information.subject), ")");
  object.Line("/Title (", entry(information.title), ")");
  object.Line("/ModDate (", strict ? "D:" + DateText(created) : "", ")").Line(">>").Line("endobj");
  file.Write({object.bytes()});
}

void WriteEnd(ObjectFile& file, const DocumentParts& parts) {
  Numbers numbers;
  WriteFonts(file, parts, numbers);
  WritePages(file, parts, numbers);
  WriteResources(file, parts, numbers);
  WriteImages(file, parts);
  WritePageObjects(file, parts, numbers);
  WriteOutlines(file, parts, numbers);
  file.Finish(WriteCatalog(file, parts, numbers));
}

}  // namespace tarvane::pdf
