#include <algorithm>
#include <array>

#include "rich_text/rtf_reader.h"

namespace tarvane::rich_text {

namespace {

template <typename Kind>
constexpr int AsNumber(Kind kind) {
  return static_cast<int>(kind);
}

// Groups that hold no text of the document. Those that begin with \* aren't here: they are skipped where
// their word isn't known.
constexpr std::string_view kSkipped =
    "aftncn aftnsep aftnsepc annotation atnauthor atndate atnicn atnid atnparent atnref atntime author "
    "background bkmkend bkmkstart blipuid buptim colorschememapping comment company creatim datafield "
    "datastore defchp defpap doccomm docvar ebcend ebcstart factoidname falt fchars ffdeftext "
    "ffentrymcr ffexitmcr ffformat ffhelptext ffl ffname ffstattext file filetbl fldinst fldtype "
    "fontemb fontfile footer footerf footerl footerr footnote formfield ftncn ftnsep ftnsepc g "
    "generator gridtbl header headerf headerl headerr hlfloc hlfr hlinkbase hlsrc hsv info keycode "
    "keywords latentstyles lchars levelnumbers leveltext lfolevel list listlevel listname listoverride "
    "listoverridelevel listoverridetable listpicture liststylename listtable lsdlockedexcept macc "
    "mailmerge manager mmath moMath nextfile nonesttables nonshppict objalias objclass objdata objname "
    "objsect objtime oldcprops oldpprops oldsprops oldtprops oleclsid operator panose password "
    "passwordhash pgp pgptbl picprop pn pnseclvl pntxta pntxtb printim private propname protend "
    "protstart protusertbl pxe revtbl revtim rsidtbl rxe shprslt staticval stylesheet subject svb tc "
    "tcn template themedata title txe userprops wgrffmtfilter windowcaption writereservation "
    "writereservhash xe xform xmlattrname xmlattrvalue xmlclose xmlname xmlnstbl xmlopen";

}  // namespace

// Words are found by their hash, in the first free slot from there on.
struct RtfReader::WordTable {
  static const Word kWords[];
  static constexpr std::size_t kSlots = 1024;  // a power of two

  WordTable();
  void Add(const Word& word);
  std::array<Word, kSlots> slots{};
};

constexpr RtfReader::Word RtfReader::WordTable::kWords[] = {
    // Letters
    {"b", &RtfReader::SetFlag<&CharStyle::bold>},
    {"i", &RtfReader::SetFlag<&CharStyle::italic>},
    {"ul", &RtfReader::SetFlag<&CharStyle::underline>},
    {"uld", &RtfReader::SetFlag<&CharStyle::underline>},
    {"uldash", &RtfReader::SetFlag<&CharStyle::underline>},
    {"uldashd", &RtfReader::SetFlag<&CharStyle::underline>},
    {"uldashdd", &RtfReader::SetFlag<&CharStyle::underline>},
    {"uldb", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulhwave", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulldash", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulth", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulthd", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulthdash", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulthdashd", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulthdashdd", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulthldash", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ululdbwave", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulw", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulwave", &RtfReader::SetFlag<&CharStyle::underline>},
    {"ulnone", &RtfReader::SetNoUnderline},
    {"strike", &RtfReader::SetFlag<&CharStyle::strike>},
    {"striked", &RtfReader::SetFlag<&CharStyle::strike>},
    {"v", &RtfReader::SetHidden, kHidden},
    {"deleted", &RtfReader::SetHidden, kDeleted},
    {"f", &RtfReader::SetFont},
    {"fs", &RtfReader::SetFontSize},
    {"cf", &RtfReader::SetColor},
    {"plain", &RtfReader::ResetCharacter},
    // Paragraphs
    {"pard", &RtfReader::ResetParagraph},
    {"ql", &RtfReader::SetAlignment, AsNumber(Alignment::kLeft)},
    {"qr", &RtfReader::SetAlignment, AsNumber(Alignment::kRight)},
    {"qc", &RtfReader::SetAlignment, AsNumber(Alignment::kCenter)},
    {"qj", &RtfReader::SetAlignment, AsNumber(Alignment::kJustified)},
    {"qd", &RtfReader::SetAlignment, AsNumber(Alignment::kJustified)},
    {"li", &RtfReader::SetLength<&ParagraphStyle::left>},
    {"ri", &RtfReader::SetLength<&ParagraphStyle::right>},
    {"fi", &RtfReader::SetLength<&ParagraphStyle::first_line>},
    {"sb", &RtfReader::SetSpace<&ParagraphStyle::before>},
    {"sa", &RtfReader::SetSpace<&ParagraphStyle::after>},
    {"sl", &RtfReader::SetLine},
    {"slmult", &RtfReader::SetLineMultiple},
    {"pagebb", &RtfReader::SetPageBreakBefore},
    {"tql", &RtfReader::SetNextTab, AsNumber(TabKind::kLeft)},
    {"tqr", &RtfReader::SetNextTab, AsNumber(TabKind::kRight)},
    {"tqc", &RtfReader::SetNextTab, AsNumber(TabKind::kCenter)},
    {"tqdec", &RtfReader::SetNextTab, AsNumber(TabKind::kDecimal)},
    {"tx", &RtfReader::AddTab},
    {"par", &RtfReader::EndOfParagraph},
    {"page", &RtfReader::EndOfPage},
    {"sect", &RtfReader::EndOfSection},
    {"sbknone", &RtfReader::ContinueSection},
    {"sbkcol", &RtfReader::ContinueSection},
    // Characters
    {"tab", &RtfReader::AddCharacter, '\t'},
    {"line", &RtfReader::AddCharacter, 0x2028},
    {"lbr", &RtfReader::AddCharacter, 0x2028},
    {"emdash", &RtfReader::AddCharacter, 0x2014},
    {"endash", &RtfReader::AddCharacter, 0x2013},
    {"lquote", &RtfReader::AddCharacter, 0x2018},
    {"rquote", &RtfReader::AddCharacter, 0x2019},
    {"ldblquote", &RtfReader::AddCharacter, 0x201C},
    {"rdblquote", &RtfReader::AddCharacter, 0x201D},
    {"bullet", &RtfReader::AddCharacter, 0x2022},
    {"emspace", &RtfReader::AddCharacter, 0x2003},
    {"enspace", &RtfReader::AddCharacter, 0x2002},
    {"qmspace", &RtfReader::AddCharacter, 0x2005},
    {"zwbo", &RtfReader::AddCharacter, 0x200B},
    {"zwnbo", &RtfReader::AddCharacter, 0x2060},
    {"zwj", &RtfReader::AddCharacter, 0x200D},
    {"zwnj", &RtfReader::AddCharacter, 0x200C},
    {"ltrmark", &RtfReader::AddCharacter, 0x200E},
    {"rtlmark", &RtfReader::AddCharacter, 0x200F},
    {"u", &RtfReader::AddUnicode},
    {"uc", &RtfReader::SetFallbackLength},
    {"ansi", &RtfReader::SetDocumentPage, kWesternPage},
    {"mac", &RtfReader::SetDocumentPage, kMacPage},
    {"pc", &RtfReader::SetDocumentPage, 437},
    {"pca", &RtfReader::SetDocumentPage, 850},
    {"ansicpg", &RtfReader::SetDocumentPage},
    // Tables of fonts and colours
    {"fonttbl", &RtfReader::EnterDestination, AsNumber(Destination::kFontTable)},
    {"fcharset", &RtfReader::SetFontCharset},
    {"cpg", &RtfReader::SetFontPage},
    {"deff", &RtfReader::SetDefaultFont},
    {"colortbl", &RtfReader::EnterDestination, AsNumber(Destination::kColorTable)},
    {"red", &RtfReader::SetColorPart<&Color::red>},
    {"green", &RtfReader::SetColorPart<&Color::green>},
    {"blue", &RtfReader::SetColorPart<&Color::blue>},
    // Tables of text
    {"intbl", &RtfReader::SetInTable},
    {"trowd", &RtfReader::BeginRow},
    {"trleft", &RtfReader::SetRowLeft},
    {"cellx", &RtfReader::AddCell},
    {"clbrdrt", &RtfReader::SetBorderSide, kTopSide},
    {"clbrdrl", &RtfReader::SetBorderSide, kLeftSide},
    {"clbrdrb", &RtfReader::SetBorderSide, kBottomSide},
    {"clbrdrr", &RtfReader::SetBorderSide, kRightSide},
    {"trbrdrt", &RtfReader::SetBorderSide, kNoSide},
    {"trbrdrl", &RtfReader::SetBorderSide, kNoSide},
    {"trbrdrb", &RtfReader::SetBorderSide, kNoSide},
    {"trbrdrr", &RtfReader::SetBorderSide, kNoSide},
    {"trbrdrh", &RtfReader::SetBorderSide, kNoSide},
    {"trbrdrv", &RtfReader::SetBorderSide, kNoSide},
    {"brdrt", &RtfReader::SetBorderSide, kNoSide},
    {"brdrl", &RtfReader::SetBorderSide, kNoSide},
    {"brdrb", &RtfReader::SetBorderSide, kNoSide},
    {"brdrr", &RtfReader::SetBorderSide, kNoSide},
    {"brdrbtw", &RtfReader::SetBorderSide, kNoSide},
    {"brdrbar", &RtfReader::SetBorderSide, kNoSide},
    {"box", &RtfReader::SetBorderSide, kNoSide},
    {"brdrs", &RtfReader::SetBorder, 1},
    {"brdrth", &RtfReader::SetBorder, 1},
    {"brdrsh", &RtfReader::SetBorder, 1},
    {"brdrdb", &RtfReader::SetBorder, 1},
    {"brdrdot", &RtfReader::SetBorder, 1},
    {"brdrdash", &RtfReader::SetBorder, 1},
    {"brdrhair", &RtfReader::SetBorder, 1},
    {"brdrdashsm", &RtfReader::SetBorder, 1},
    {"brdrdashd", &RtfReader::SetBorder, 1},
    {"brdrdashdd", &RtfReader::SetBorder, 1},
    {"brdrtriple", &RtfReader::SetBorder, 1},
    {"brdrtnthsg", &RtfReader::SetBorder, 1},
    {"brdrthtnsg", &RtfReader::SetBorder, 1},
    {"brdrtnthtnsg", &RtfReader::SetBorder, 1},
    {"brdrtnthmg", &RtfReader::SetBorder, 1},
    {"brdrthtnmg", &RtfReader::SetBorder, 1},
    {"brdrtnthtnmg", &RtfReader::SetBorder, 1},
    {"brdrtnthlg", &RtfReader::SetBorder, 1},
    {"brdrthtnlg", &RtfReader::SetBorder, 1},
    {"brdrtnthtnlg", &RtfReader::SetBorder, 1},
    {"brdrwavy", &RtfReader::SetBorder, 1},
    {"brdrwavydb", &RtfReader::SetBorder, 1},
    {"brdrdashdotstr", &RtfReader::SetBorder, 1},
    {"brdremboss", &RtfReader::SetBorder, 1},
    {"brdrengrave", &RtfReader::SetBorder, 1},
    {"brdrinset", &RtfReader::SetBorder, 1},
    {"brdroutset", &RtfReader::SetBorder, 1},
    {"brdrnone", &RtfReader::SetBorder, 0},
    {"brdrnil", &RtfReader::SetBorder, 0},
    {"cell", &RtfReader::EndOfCell},
    {"row", &RtfReader::EndOfRow},
    {"nestcell", &RtfReader::EndOfNestedCell},
    {"nestrow", &RtfReader::EndOfNestedRow},
    // Pictures
    {"pict", &RtfReader::EnterPicture},
    {"pngblip", &RtfReader::SetPictureFormat, AsNumber(Picture::Format::kPng)},
    {"jpegblip", &RtfReader::SetPictureFormat, AsNumber(Picture::Format::kJpeg)},
    {"picwgoal", &RtfReader::SetPictureNumber<&RtfReader::goal_width_>},
    {"pichgoal", &RtfReader::SetPictureNumber<&RtfReader::goal_height_>},
    {"picscalex", &RtfReader::SetPictureNumber<&RtfReader::scale_x_>},
    {"picscaley", &RtfReader::SetPictureNumber<&RtfReader::scale_y_>},
    {"bin", &RtfReader::Bin},
    // Groups
    {"shppict", &RtfReader::Ignore, 0, true},
    {"shpinst", &RtfReader::EnterDestination, AsNumber(Destination::kNowhere), true},
    {"shptxt", &RtfReader::EnterDestination, AsNumber(Destination::kText)},
    {"sn", &RtfReader::EnterShapeProperty, AsNumber(Destination::kShapeProperty)},
    {"shpleft", &RtfReader::SetPictureNumber<&RtfReader::shape_left_>},
    {"shptop", &RtfReader::SetPictureNumber<&RtfReader::shape_top_>},
    {"shpright", &RtfReader::SetPictureNumber<&RtfReader::shape_right_>},
    {"shpbottom", &RtfReader::SetPictureNumber<&RtfReader::shape_bottom_>},
    {"do", &RtfReader::EnterDestination, AsNumber(Destination::kNowhere), true},
    {"dptxbxtext", &RtfReader::EnterDestination, AsNumber(Destination::kText)},
    {"result", &RtfReader::Ignore},
    {"fldrslt", &RtfReader::Ignore, 0, true},
    {"upr", &RtfReader::EnterUnicodePair},
    {"ud", &RtfReader::Ignore, 0, true},
};

RtfReader::WordTable::WordTable() {
  for (const Word& word : kWords) Add(word);
  for (std::string_view rest = kSkipped; !rest.empty();) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    Add({rest.substr(0, end), &RtfReader::SkipDestination});
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

void RtfReader::WordTable::Add(const Word& word) {
  std::uint32_t hash = 0;
  for (const char letter : word.name) hash = NextWordHash(hash, letter);
  while (!slots[hash % kSlots].name.empty()) ++hash;
  slots[hash % kSlots] = word;
}

const RtfReader::Word* RtfReader::FindWord(std::string_view name, std::uint32_t hash) {
  static const WordTable kTable;
  for (;; ++hash) {
    const Word& word = kTable.slots[hash % WordTable::kSlots];
    if (word.name == name) return &word;
    if (word.name.empty()) return nullptr;
  }
}

}  // namespace tarvane::rich_text
