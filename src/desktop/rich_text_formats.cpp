#include "desktop/rich_text_formats.h"

#include <QBuffer>
#include <QImageReader>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QUrl>
#include <QUuid>
#include <algorithm>
#include <cmath>

#include "desktop/text.h"

namespace tarvane::desktop {

using rich_text::Alignment;
using rich_text::CharStyle;
using rich_text::Document;
using rich_text::ParagraphStyle;
using rich_text::TabKind;
using rich_text::TabStop;

namespace {

constexpr std::pair<Alignment, Qt::AlignmentFlag> kAlignments[] = {{Alignment::kLeft, Qt::AlignLeft},
                                                                   {Alignment::kRight, Qt::AlignRight},
                                                                   {Alignment::kCenter, Qt::AlignHCenter},
                                                                   {Alignment::kJustified, Qt::AlignJustify}};
constexpr std::pair<TabKind, QTextOption::TabType> kTabKinds[] = {
    {TabKind::kLeft, QTextOption::LeftTab},
    {TabKind::kRight, QTextOption::RightTab},
    {TabKind::kCenter, QTextOption::CenterTab},
    {TabKind::kDecimal, QTextOption::DelimiterTab}};

template <typename Table, typename Value>
auto Theirs(const Table& table, Value ours) {
  return std::ranges::find(table, ours, [](const auto& pair) { return pair.first; })->second;
}

template <typename Table, typename Value>
auto Ours(const Table& table, Value theirs) {
  const auto found = std::ranges::find(table, theirs, [](const auto& pair) { return pair.second; });
  return (found == std::end(table) ? std::begin(table) : found)->first;
}

constexpr std::size_t kMostTabs = 64;

double PointsOf(const QTextCharFormat& format, double usual, double pixels_per_point) {
  if (format.hasProperty(QTextFormat::FontPointSize)) return format.fontPointSize();
  if (format.hasProperty(QTextFormat::FontPixelSize)) {
    return format.intProperty(QTextFormat::FontPixelSize) / pixels_per_point;
  }
  return usual * (1 + 0.2 * format.intProperty(QTextFormat::FontSizeAdjustment));
}

}  // namespace

PictureNames::PictureNames() : prefix_("picture:" + QUuid::createUuid().toString(QUuid::WithoutBraces)) {}

QString PictureNames::Add(const rich_text::Picture& picture) {
  QString name = prefix_ + "/" + QString::number(pictures_.size());
  pictures_.emplace(name, picture);
  return name;
}

const rich_text::Picture* PictureNames::Find(const QString& name) const {
  const auto found = pictures_.find(name);
  return found == pictures_.end() ? nullptr : &found->second;
}

int RichTextFormats::Twips(double pixels) const {
  constexpr double kMost = 1e6;
  return static_cast<int>(std::lround(std::clamp(pixels / pixels_per_twip_, -kMost, kMost)));
}

QTextCharFormat RichTextFormats::ToQt(const Document& document, const CharStyle& style) const {
  QTextCharFormat format;
  format.setFontFamilies({tarvane::desktop::ToQt(document.fonts[style.font])});
  format.setFontPointSize(style.half_points / 2.0);
  format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(style.italic);
  format.setFontUnderline(style.underline);
  format.setFontStrikeOut(style.strike);
  format.setForeground(QColor(style.color.red, style.color.green, style.color.blue));
  return format;
}

CharStyle RichTextFormats::FromQt(const QTextCharFormat& format, const UsualStyle& usual,
                                  Document& fonts) const {
  CharStyle style = usual.style;
  const QStringList families = format.fontFamilies().toStringList();
  style.font = fonts.FontNumber(families.isEmpty() ? usual.font : desktop::FromQt(families.front()));
  const double points = PointsOf(format, style.half_points / 2.0, Pixels(rich_text::kTwipsPerPoint));
  style.half_points = static_cast<std::uint16_t>(std::clamp(std::lround(points * 2), 1L, 3000L));
  if (format.hasProperty(QTextFormat::FontWeight)) style.bold = format.fontWeight() >= QFont::DemiBold;
  if (format.hasProperty(QTextFormat::FontItalic)) style.italic = format.fontItalic();
  if (format.hasProperty(QTextFormat::TextUnderlineStyle) || format.hasProperty(QTextFormat::FontUnderline)) {
    style.underline = format.fontUnderline();
  }
  if (format.hasProperty(QTextFormat::FontStrikeOut)) style.strike = format.fontStrikeOut();
  if (format.hasProperty(QTextFormat::ForegroundBrush)) {
    const QColor color = format.foreground().color();
    style.color = {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                   static_cast<std::uint8_t>(color.blue())};
  }
  return style;
}

QTextBlockFormat RichTextFormats::ToQt(const ParagraphStyle& style) const {
  QTextBlockFormat format;
  format.setAlignment(Theirs(kAlignments, style.alignment));
  if (style.page_break_before) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  format.setLeftMargin(Pixels(style.left));
  format.setRightMargin(Pixels(style.right));
  format.setTextIndent(Pixels(style.first_line));
  format.setTopMargin(Pixels(style.before));
  format.setBottomMargin(Pixels(style.after));
  if (style.line_height != 0) {
    format.setLineHeight(Pixels(std::abs(style.line_height)), style.line_height < 0
                                                                  ? QTextBlockFormat::FixedHeight
                                                                  : QTextBlockFormat::MinimumHeight);
  }
  QList<QTextOption::Tab> tabs;
  for (const TabStop& tab : style.tabs) {
    tabs.append(QTextOption::Tab(Pixels(tab.at - style.left), Theirs(kTabKinds, tab.kind), '.'));
  }
  if (!tabs.isEmpty()) format.setTabPositions(tabs);
  return format;
}

ParagraphStyle RichTextFormats::FromQt(const QTextBlockFormat& format) const {
  ParagraphStyle style;
  style.alignment = Ours(
      kAlignments, static_cast<Qt::AlignmentFlag>((format.alignment() & Qt::AlignHorizontal_Mask).toInt()));
  style.page_break_before = format.pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysBefore);
  constexpr double kIndent = 720;  // of a step that pasted texts are moved in by
  style.left = Twips(format.leftMargin() + Pixels(kIndent) * format.indent());
  style.right = Twips(format.rightMargin());
  style.first_line = Twips(format.textIndent());
  style.before = Twips(format.topMargin());
  style.after = Twips(format.bottomMargin());
  if (format.lineHeightType() == QTextBlockFormat::FixedHeight)
    style.line_height = -Twips(format.lineHeight());
  if (format.lineHeightType() == QTextBlockFormat::MinimumHeight)
    style.line_height = Twips(format.lineHeight());
  for (const QTextOption::Tab& tab : format.tabPositions()) {
    const int at = Twips(tab.position + Pixels(style.left));
    const bool is_behind = style.tabs.empty() || style.tabs.back().at < at;
    if (is_behind && style.tabs.size() < kMostTabs) style.tabs.push_back({at, Ours(kTabKinds, tab.type)});
  }
  return style;
}

}  // namespace tarvane::desktop
