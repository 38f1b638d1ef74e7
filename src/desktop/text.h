#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "text/trim.h"

namespace tarvane::desktop {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

// A memo's lines end in CR LF in the fields and in LF in Qt's editors.
inline QString LinesToQt(std::string_view text) { return ToQt(text).replace("\r\n", "\n"); }
inline std::string LinesFromQt(const QString& text) { return FromQt(QString(text).replace("\n", "\r\n")); }

// A caption without the mark of its access key.
inline QString PlainText(std::string_view caption) { return ToQt(PlainCaption(caption)); }

}  // namespace tarvane::desktop
