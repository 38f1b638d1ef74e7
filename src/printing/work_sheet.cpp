#include "printing/work_sheet.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <tuple>
#include <utility>

namespace tarvane::printing {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kNewPage = "\f";
constexpr std::size_t kRuleLength = 58;

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::string DayAndTime(const DateTime& now) {
  return LongDate(now.day) + " " + TwoDigits(now.hour) + ":" + TwoDigits(now.minute) + ":" +
         TwoDigits(now.second);
}

std::string Joined(const std::array<std::string, 5>& pieces) {
  std::string joined;
  for (const std::string& piece : pieces) {
    if (piece.empty()) continue;
    if (!joined.empty()) joined += ", ";
    joined += piece;
  }
  return joined;
}

// Only the sheet itself begins pages; what else a job's data hold of control characters is nothing to print.
std::string Printable(std::string_view text) {
  std::string printable(text);
  std::erase_if(printable, [](char character) {
    const bool is_control = static_cast<unsigned char>(character) < ' ' || character == '\x7F';
    return is_control && character != '\t' && character != '\r' && character != '\n';
  });
  return printable;
}

// A text that grows by lines.
class Lines {
 public:
  void Add(std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) text_ += Printable(piece);
    End();
  }
  void End(int times = 1) {
    for (; times > 0; --times) text_ += kLineEnd;
  }
  // In place of the last line's end, so that a page that is just full has no empty one behind it.
  void BeginPage() {
    if (text_.empty()) return;
    text_.resize(text_.size() - kLineEnd.size());
    text_ += kNewPage;
  }
  std::string Take() { return std::exchange(text_, {}); }

 private:
  std::string text_;
};

void AddAddress(Lines& lines, const JobHead& job) {
  lines.Add({job.name});
  for (const std::string& line : job.address) lines.Add({line});
}

void AddHead(Lines& lines, const PrintedJob& printed) {
  lines.End();
  for (const std::string& line : WorkSheetHead(printed.job, printed.notes, printed.now)) lines.Add({line});
}

void AddCompany(Lines& lines, const CompanyHead& company) {
  lines.Add({company.name});
  lines.Add({Joined(company.address)});
  lines.Add({"Tele: ", company.telephone, " Fax No: ", company.fax});
  lines.Add({"Vat No: ", company.vat_number});
  lines.End(3);
}

void AddLetter(Lines& lines, const PrintedJob& printed) {
  AddAddress(lines, printed.job);
  lines.End(2);
  lines.Add({"Date: ", LongDate(printed.now.day)});
  lines.Add({"Ref No: ", printed.job.reference});
  lines.End(4);
  lines.Add({"Dear ", printed.letter->dear});
  lines.End(2);
  if (printed.letter->body) lines.Add({*printed.letter->body});
}

void AddBalance(Lines& lines, const JobHead& job) {
  lines.Add({"The total balance payable for the order(s) will be ", job.balance});
  lines.End(2);
}

// A text with a blank line on either side.
void AddApart(Lines& lines, const std::string& text) {
  lines.End();
  lines.Add({text});
  lines.End();
}

void AddSingles(Lines& lines, const SinglesPart& singles) {
  const std::string rule(kRuleLength, '-');
  lines.Add({"------- START OF SINGLE ITEMS"});
  for (const auto& row : singles.rows) {
    lines.Add({"(Item No:) ", row[0], " (Qty:) ", row[1], " (Description:) ", row[2], " (Unit Price:) ",
               row[3], " (Total Price:) ", row[4]});
    lines.End();
  }
  lines.Add({rule});
  lines.Add({"Total price for single items includes Vat/Tax  ", singles.sum});
  lines.Add({rule});
  lines.Add({"------- END OF SINGLE ITEMS"});
}

void AddBeforeRooms(Lines& lines, const PrintedJob& printed) {
  if (printed.work_sheet) AddHead(lines, printed);
  if (printed.company) AddCompany(lines, *printed.company);
  if (printed.letter) AddLetter(lines, printed);
  if (printed.balance) AddBalance(lines, printed.job);
  for (const std::string& closing : printed.closings) AddApart(lines, closing);
  if (printed.new_page) {
    lines.BeginPage();
    lines.End(2);
    lines.Add({"Date Printed ", DayAndTime(printed.now)});
  }
  if (printed.singles) AddSingles(lines, *printed.singles);
}

// Calls `text` and `curtain` for what comes, in its order.
template <typename TakeText, typename TakeCurtain>
void Walk(const PrintedJob& printed, TakeText text, TakeCurtain curtain) {
  Lines lines;
  AddBeforeRooms(lines, printed);
  for (const RoomPart& room : printed.rooms) {
    const std::string number = std::to_string(room.number);
    lines.Add({"------- START OF ORDER/ROOM ", number});
    lines.Add({room.text});
    if (!room.curtains.empty()) text(lines.Take());
    for (const CurtainMeasures& measures : room.curtains) curtain(measures);
    lines.Add({"------- END OF ORDER/ROOM ", number});
  }
  if (printed.exceptions) AddApart(lines, *printed.exceptions);
  text(lines.Take());
}

std::uint32_t StyleNumber(rich_text::Document& document, const rich_text::ParagraphStyle& style) {
  auto& styles = document.paragraph_styles;
  const auto found = std::ranges::find(styles, style);
  if (found != styles.end()) return static_cast<std::uint32_t>(found - styles.begin());
  styles.push_back(style);
  return static_cast<std::uint32_t>(styles.size() - 1);
}

// Puts a text of the same look behind the last paragraph, which is empty.
void Append(rich_text::Document& document, const rich_text::Document& piece) {
  const auto end = static_cast<std::uint32_t>(document.text.size());
  for (std::size_t i = 0; i < piece.paragraphs.size(); ++i) {
    rich_text::Paragraph paragraph = piece.paragraphs[i];
    paragraph.begin += end;
    paragraph.style = StyleNumber(document, piece.StyleOf(piece.paragraphs[i]));
    if (i == 0) document.paragraphs.pop_back();
    document.paragraphs.push_back(paragraph);
  }
  document.text += piece.text;
}

// The picture is a paragraph of its own.
void AppendPicture(rich_text::Document& document, rich_text::Picture picture) {
  document.text.append(rich_text::kPictureSign).append("\n");
  document.pictures.push_back(std::move(picture));
  document.paragraphs.push_back({.begin = static_cast<std::uint32_t>(document.text.size())});
}

// The drawings of a sheet: the pairs of a room are often alike, and one drawing does for them.
class Drawings {
 public:
  const CurtainDrawing& Of(const CurtainMeasures& measures) {
    const std::tuple key(measures.track, measures.drop, measures.hem, measures.fullness);
    const auto found = drawings_.find(key);
    return found != drawings_.end() ? found->second
                                    : drawings_.emplace(key, DrawCurtain(measures)).first->second;
  }

 private:
  std::map<std::tuple<double, double, double, double>, CurtainDrawing> drawings_;
};

std::string Caption(const CurtainMeasures& measures, int scale) {
  const std::string description = measures.description.empty() ? "" : measures.description + ": ";
  return description + measures.in_words + ", scale 1 : " + std::to_string(scale) + "\n\n";
}

}  // namespace

std::vector<std::string> WorkSheetHead(const JobHead& job, bool notes, const DateTime& now) {
  std::vector<std::string> lines = {job.name};
  lines.insert(lines.end(), job.address.begin(), job.address.end());
  lines.insert(
      lines.end(),
      {"Telephone: " + job.telephone, "Mobile: " + job.mobile, "Work Sheets Printed on: " + DayAndTime(now),
       "Tarvane Ref No: " + job.reference, "Tarvane Order No: " + job.order_reference,
       "Completion Date:   " + job.completion_date, "Fitting Date: " + job.fitting_date, ""});
  if (notes) {
    lines.insert(lines.end(), {"Notes about this Job", job.notes, "", "-------------------------"});
  }
  std::ranges::transform(lines, lines.begin(), Printable);
  return lines;
}

std::string PrintedText(const PrintedJob& job) {
  std::string printed;
  Walk(
      job, [&](const std::string& text) { printed += text; }, [](const CurtainMeasures&) {});
  return printed;
}

rich_text::Document PrintedDocument(const PrintedJob& job, const rich_text::CharStyle& style,
                                    std::string_view font) {
  rich_text::Document document = rich_text::FromPlainText("", style, font);
  const auto append = [&](const std::string& text) {
    Append(document, rich_text::FromPlainText(text, style, font));
  };
  Drawings drawings;
  Walk(job, append, [&](const CurtainMeasures& measures) {
    const CurtainDrawing& drawing = drawings.Of(measures);
    AppendPicture(document, drawing.picture);
    append(Caption(measures, drawing.scale));
  });
  return document;
}

}  // namespace tarvane::printing
