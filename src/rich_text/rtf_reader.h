#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "rich_text/code_pages.h"
#include "rich_text/document.h"
#include "rich_text/document_builder.h"

namespace tarvane::rich_text {

// Reads one RTF file. Control words are looked up in a table (rtf_words.cpp) that names for each the member
// that acts on it; the file is gone through once.
class RtfReader {
 public:
  // `bytes` must outlive it.
  explicit RtfReader(std::string_view bytes);
  Document Read() &&;

 private:
  // What becomes of the text of a group.
  enum class Destination : std::uint8_t {
    kText,
    kNowhere,
    kShapeProperty,
    kFontTable,
    kColorTable,
    kPicture
  };

  // What a group keeps for itself: at its end, what held before it holds again.
  struct State {
    Destination destination = Destination::kText;
    bool in_table = false;
    bool line_multiple = false;
    bool page_break_before = false;
    bool skips_next_group = false;
    std::uint8_t hidden = 0;  // a sum of Hiding
    CharStyle style;
    int fallback_length = 1;  // characters behind \u for those who don't know it
    int page = kWesternPage;
    int line = 0;
    ParagraphStyle paragraph;
    TabKind next_tab = TabKind::kLeft;
  };

  struct Argument {
    int number = 0;  // as it stands behind the control word
    bool given = false;
    int value = 0;  // as the table of words has it
    bool On() const { return !given || number != 0; }
    int Length() const;
  };

  struct Word {
    std::string_view name;
    void (RtfReader::*act)(const Argument&);
    int value = 0;
    bool survives_star = false;  // \* before it skips the group of a reader that doesn't know it
  };

  struct FontEntry {
    std::string name;
    int page = 0;
    int document_font = -1;
  };

  enum Hiding : int { kHidden = 1, kDeleted = 2 };

  static constexpr std::uint32_t NextWordHash(std::uint32_t hash, char letter) {
    return hash * 31 + static_cast<unsigned char>(letter);
  }
  static constexpr std::string_view kShapePicture =
      "pib";  // of a shape's properties, the one that is a picture

  static const Word* FindWord(std::string_view name, std::uint32_t hash);
  struct WordTable;

  // rtf_reader.cpp: the file's grammar.
  void Step();
  void OpenGroup();
  void CloseGroup();
  void SkipGroup();
  void ReadControl();
  void ReadWord();
  void ReadSymbol(char symbol);
  void ReadHexByte();
  bool AtEnd() const { return at_ >= bytes_.size(); }

  // rtf_reader_text.cpp: characters.
  void PutPlain(std::string_view ascii);
  void PutByte(unsigned char byte);
  void PutManyByte(unsigned char byte);
  void PutCharacter(char32_t character);
  void PutFallbackOr(char32_t character);
  void PutDecoded(std::string_view text);
  void Settle();
  void BreakPage();
  const ParagraphStyle& LookOfParagraph();
  void EndParagraph(DocumentBuilder::Ending ending);
  bool InText() const { return state_.destination == Destination::kText; }

  // rtf_reader_words.cpp: what control words do.
  template <bool CharStyle::*kFlag>
  void SetFlag(const Argument& argument) {
    state_.style.*kFlag = argument.On();
  }
  template <std::int32_t ParagraphStyle::*kLength>
  void SetLength(const Argument& argument) {
    state_.paragraph.*kLength = argument.Length();
  }
  template <std::int32_t ParagraphStyle::*kLength>
  void SetSpace(const Argument& argument) {
    state_.paragraph.*kLength = argument.Length() < 0 ? 0 : argument.Length();
  }
  void Ignore(const Argument&) {}
  void SetNoUnderline(const Argument&) { state_.style.underline = false; }
  void SetHidden(const Argument& argument);
  void SetFontSize(const Argument& argument);
  void SetColor(const Argument& argument);
  void ResetCharacter(const Argument& argument);
  void ResetParagraph(const Argument& argument);
  void SetAlignment(const Argument& argument);
  void SetLine(const Argument& argument) { state_.line = argument.Length(); }
  void SetLineMultiple(const Argument& argument) { state_.line_multiple = argument.On(); }
  void SetPageBreakBefore(const Argument& argument) { state_.page_break_before = argument.On(); }
  void SetNextTab(const Argument& argument) { state_.next_tab = static_cast<TabKind>(argument.value); }
  void AddTab(const Argument& argument);
  void AddCharacter(const Argument& argument);
  void AddUnicode(const Argument& argument);
  void SetFallbackLength(const Argument& argument);
  void SetDocumentPage(const Argument& argument);
  void EndOfParagraph(const Argument& argument);
  void EndOfPage(const Argument& argument);
  void EndOfSection(const Argument& argument);
  void ContinueSection(const Argument& argument);
  void Bin(const Argument& argument);
  void SkipDestination(const Argument& argument);
  void EnterDestination(const Argument& argument);
  void EnterUnicodePair(const Argument& argument);

  // rtf_reader_tables.cpp: tables of text, of fonts and of colours.
  void SetInTable(const Argument& argument) { state_.in_table = argument.On(); }
  void BeginRow(const Argument& argument);
  void SetRowLeft(const Argument& argument);
  void AddCell(const Argument& argument);
  void SetBorderSide(const Argument& argument) { border_side_ = argument.value; }
  void SetBorder(const Argument& argument);
  void EndOfCell(const Argument& argument);
  void EndOfRow(const Argument& argument);
  void EndOfNestedCell(const Argument& argument);
  void EndOfNestedRow(const Argument& argument);
  void SetFont(const Argument& argument);
  void SetFontCharset(const Argument& argument);
  void SetFontPage(const Argument& argument);
  void SetDefaultFont(const Argument& argument) { default_font_ = argument.number; }
  void UseFont(int number);
  void PutFontName(std::string_view text);
  void FinishFont();
  template <std::uint8_t Color::*kPart>
  void SetColorPart(const Argument& argument) {
    next_color_.*kPart = static_cast<std::uint8_t>(std::clamp(argument.number, 0, 255));
  }
  void FinishColor();

  // rtf_reader_pictures.cpp
  void EnterShapeProperty(const Argument& argument);
  void EnterPicture(const Argument& argument);
  void SetPictureFormat(const Argument& argument);
  template <int RtfReader::*kNumber>
  void SetPictureNumber(const Argument& argument) {
    this->*kNumber = argument.Length();
  }
  void PutHex(std::string_view digits);
  void PutPictureBytes(std::string_view bytes);
  void FinishPicture();

  std::string_view bytes_;
  std::size_t at_ = 0;
  std::size_t depth_ = 0;  // groups that are open
  std::vector<State> saved_;
  State state_;
  bool starred_ = false;  // behind \*
  bool fresh_ = false;    // the group has had nothing yet
  bool done_ = false;
  DocumentBuilder builder_;

  int document_page_ = kWesternPage;
  int skip_ = 0;  // characters of a fallback that are still to come
  char32_t high_surrogate_ = 0;
  std::string letter_;  // room for one
  std::string lead_;    // the bytes of a character that isn't whole yet
  bool break_pending_ = false;
  bool break_is_sections_ = false;
  bool break_here_ = false;  // the paragraph begins a page

  TableRow row_;
  std::uint8_t cell_borders_ = 0;
  int border_side_ = kNoSide;

  std::vector<FontEntry> fonts_;
  std::unordered_map<int, std::uint16_t> font_by_number_;
  int default_font_ = 0;
  int next_font_ = 0;
  int next_font_page_ = 0;
  std::string font_name_;
  std::vector<Color> colors_;
  Color next_color_;

  bool picture_known_ = false;
  Picture picture_;
  std::uint8_t hex_digit_ = 0;  // the first of two, while the second is to come
  std::string shape_property_;  // the name of the last one
  int shape_left_ = 0;
  int shape_top_ = 0;
  int shape_right_ = 0;
  int shape_bottom_ = 0;
  int goal_width_ = 0;
  int goal_height_ = 0;
  int scale_x_ = 0;  // of a hundred; 0: as large as it is
  int scale_y_ = 0;
};

}  // namespace tarvane::rich_text
