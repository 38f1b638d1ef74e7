#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "printing/curtain_drawing.h"
#include "rich_text/document.h"
#include "text/day.h"

// The one text that a job becomes for its workroom or its customer. Lines end with CR LF; a form feed begins
// a page.
namespace tarvane::printing {

// What the open job tells of itself, as it stands in its fields. Any of it may be empty.
struct JobHead {
  std::string name;
  std::array<std::string, 4> address;  // street, town, county, post code
  std::string telephone;
  std::string mobile;
  std::string reference;
  std::string order_reference;
  std::string completion_date;
  std::string fitting_date;
  std::string notes;
  std::string balance;
};

struct CompanyHead {
  std::string name;
  std::array<std::string, 5> address;
  std::string telephone;
  std::string fax;
  std::string vat_number;
};

struct LetterPart {
  std::string dear;
  std::optional<std::string> body;  // none where the tab in use has only a closing text
};

struct SinglesPart {
  std::vector<std::array<std::string, 5>> rows;  // item number, quantity, description, unit price, total
  std::string sum;
};

struct RoomPart {
  int number = 1;                         // from 1
  std::string text;                       // its compiled summary
  std::vector<CurtainMeasures> curtains;  // drawn below it
};

// What is to be in the text, in the order in which it comes there. Null: is left out.
struct PrintedJob {
  DateTime now;
  JobHead job;
  bool work_sheet = false;  // the workroom's head
  bool notes = false;       // in it
  std::optional<CompanyHead> company;
  std::optional<LetterPart> letter;
  bool balance = false;
  std::vector<std::string> closings;
  bool new_page = false;  // what follows begins one, and tells when it was printed
  std::optional<SinglesPart> singles;
  std::vector<RoomPart> rooms;
  std::optional<std::string> exceptions;
};

std::string PrintedText(const PrintedJob& job);

// The same with the drawings, each with its measures in words below it.
rich_text::Document PrintedDocument(const PrintedJob& job, const rich_text::CharStyle& style,
                                    std::string_view font);

// The lines that a work sheet begins with, without their ends; one of them may hold line ends itself.
std::vector<std::string> WorkSheetHead(const JobHead& job, bool notes, const DateTime& now);

}  // namespace tarvane::printing
