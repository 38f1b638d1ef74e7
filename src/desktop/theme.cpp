#include "desktop/theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QSettings>
#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "desktop/calm_style.h"
#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

constexpr std::array<std::pair<const char*, ColourScheme>, 3> kSchemes = {{
    {"system", ColourScheme::kSystem},
    {"light", ColourScheme::kLight},
    {"dark", ColourScheme::kDark},
}};

struct Colours {
  QRgb window, text, base, alternate, button, quiet, disabled, rule, frame, strip, accent, on_accent, link,
      idle, wrong, care;
};
//                             window      text        base        alternate   button      quiet
constexpr Colours kLight = {0xfff4f5f7, 0xff1c2126, 0xffffffff, 0xfff5f8fb, 0xffeceff2, 0xff56606b,
                            0xff626a73, 0xffd3d8de, 0xff9aa4af, 0xffe6ecf2, 0xff1f5f99, 0xffffffff,
                            0xff1f5f99, 0xffbfcddb, 0xffb3261e, 0xff8a5a00};
constexpr Colours kDark = {0xff23272c, 0xffe6e9ec, 0xff1a1d21, 0xff20242a, 0xff343a41, 0xffa5afb9,
                           0xff9ba4ad, 0xff3d444c, 0xff5f6a75, 0xff2c333b, 0xff5aa5e6, 0xff10161c,
                           0xff7dbcf2, 0xff435261, 0xffff8a80, 0xfff0b84d};

constexpr char kSystemIsDark[] = "system_is_dark";
constexpr char kScheme[] = "scheme";

QPalette PaletteOf(const Colours& colours) {
  QPalette palette(QColor(colours.text), QColor(colours.button), QColor(colours.button).lighter(130),
                   QColor(colours.frame), QColor(colours.rule), QColor(colours.text),
                   QColor(colours.on_accent), QColor(colours.base), QColor(colours.window));
  palette.setColor(QPalette::AlternateBase, QColor(colours.alternate));
  palette.setColor(QPalette::ToolTipBase, QColor(colours.strip));
  palette.setColor(QPalette::ToolTipText, QColor(colours.text));
  palette.setColor(QPalette::Highlight, QColor(colours.accent));
  palette.setColor(QPalette::HighlightedText, QColor(colours.on_accent));
  // What is selected where the worker isn't.
  palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(colours.idle));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(colours.text));
  palette.setColor(QPalette::BrightText, QColor(colours.wrong));
  palette.setColor(QPalette::LinkVisited, QColor(colours.care));
  palette.setColor(QPalette::PlaceholderText, QColor(colours.quiet));
  palette.setColor(QPalette::Link, QColor(colours.link));
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, QColor(colours.disabled));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours.window));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.rule));
  return palette;
}

}  // namespace

bool ParseScheme(const QString& text, ColourScheme& scheme) {
  for (const auto& [name, value] : kSchemes) {
    if (text != QLatin1String(name)) continue;
    scheme = value;
    return true;
  }
  return false;
}

Theme LoadTheme() {
  const QSettings settings;
  Theme theme;
  ParseScheme(settings.value("theme").toString(), theme.scheme);
  theme.text_size = std::clamp(settings.value("text_size", Theme::kUsualTextSize).toInt(),
                               Theme::kSmallestText, Theme::kLargestText);
  return theme;
}

void SaveTheme(const Theme& theme) {
  QSettings settings;
  for (const auto& [name, value] : kSchemes) {
    if (value == theme.scheme) settings.setValue("theme", name);
  }
  settings.setValue("text_size", theme.text_size);
}

void ApplyTheme(const Theme& theme) {
  QCoreApplication& application = *QCoreApplication::instance();
  if (!application.property(kSystemIsDark).isValid()) {
    application.setProperty(kSystemIsDark, QApplication::palette().color(QPalette::Window).lightness() < 128);
    QApplication::setStyle(Make<CalmStyle>());
  }
  const bool dark = theme.scheme == ColourScheme::kDark ||
                    (theme.scheme == ColourScheme::kSystem && application.property(kSystemIsDark).toBool());
  application.setProperty(kScheme, static_cast<int>(theme.scheme));
  QApplication::setPalette(PaletteOf(dark ? kDark : kLight));
  QFont font = QApplication::font();
  if (font.pointSize() == theme.text_size) return;
  font.setPointSize(theme.text_size);
  QApplication::setFont(font);
}

Theme CurrentTheme() {
  return {static_cast<ColourScheme>(QCoreApplication::instance()->property(kScheme).toInt()),
          QApplication::font().pointSize()};
}

int Quarters(int count) { return (QFontMetrics(QApplication::font()).height() * count + 2) / 4; }

int Digits(int count) { return QFontMetrics(QApplication::font()).horizontalAdvance('0') * count; }

QColor RuleColour() { return QApplication::palette().color(QPalette::Mid); }
QColor WrongColour() { return QApplication::palette().color(QPalette::BrightText); }
QColor StripColour() { return QApplication::palette().color(QPalette::ToolTipBase); }

}  // namespace tarvane::desktop
