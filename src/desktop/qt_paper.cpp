#include "desktop/qt_paper.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPen>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

#include "desktop/text.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

constexpr double kMostPixels = 64e6;

QColor ToQt(const paper::Color& color) { return {color.red, color.green, color.blue}; }

QRectF ToQt(const paper::Area& area) { return {area.left, area.top, area.width(), area.height()}; }

}  // namespace

QImage PictureCache::Decoded(const paper::Picture& picture) {
  const std::size_t key = std::hash<std::string>()(picture.bytes);
  if (const auto found = images_.find(key); found != images_.end()) return found->second;
  QByteArray bytes =
      QByteArray::fromRawData(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, picture.format == paper::Picture::Format::kPng ? "png" : "jpeg");
  reader.setAutoTransform(true);
  const QImage image = reader.read();
  if (bytes_ + image.sizeInBytes() > kMostBytes) {
    images_.clear();
    bytes_ = 0;
  }
  bytes_ += image.sizeInBytes();
  return images_[key] = image;
}

QtSurface::QtSurface(PaperTools& tools, QPainter& painter, const paper::Paper& paper,
                     std::function<void()> new_page)
    : tools_(tools), painter_(painter), paper_(paper), new_page_(std::move(new_page)) {
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                          QPainter::SmoothPixmapTransform);
  painter_.setLayoutDirection(Qt::LeftToRight);
}

void QtSurface::NewPage() {
  if (new_page_) new_page_();
}

std::string QtSurface::missing() const {
  std::u32string characters;
  for (const auto& [character, has_font] : shown_) {
    if (!has_font) characters += character;
  }
  return FromQt(QString::fromStdU32String(characters));
}

void QtSurface::NoteMissing(const paper::Font& font, const QString& text) {
  for (qsizetype at = 0; at < text.size(); ++at) {
    char32_t character = text[at].unicode();
    if (character < 0x7F) continue;
    if (text[at].isHighSurrogate() && at + 1 < text.size()) {
      character = QChar::surrogateToUcs4(text[at], text[at + 1]);
      ++at;
    }
    const auto [entry, fresh] = shown_.try_emplace(character, true);
    if (fresh) entry->second = tools_.measure.CanShow(font, character);
  }
}

void QtSurface::DrawText(paper::Point at, const paper::Font& font, std::string_view text,
                         const paper::TextLook& look) {
  if (text.empty() || !(font.points > 0)) return;
  const QString shown = desktop::ToQt(text);
  NoteMissing(font, shown);
  const QTransform before = painter_.worldTransform();
  painter_.translate(at.x, at.y);
  if (look.angle != 0) painter_.rotate(-look.angle);
  if (font.underline || font.strike) {
    const auto blanks = static_cast<double>(std::ranges::count(text, ' '));
    DrawRules(font, WidthOf(font, text) + blanks * look.blank, look.color);
  }
  const double scale = font.points / QtMeasure::kReferencePixels;
  painter_.scale(scale, scale);
  painter_.setPen(ToQt(look.color));
  DrawWords(font, shown, look.blank / scale);
  painter_.setWorldTransform(before);
}

// In the reference scale. Words that are spread stand each for themselves, so that every blank gets its
// share.
void QtSurface::DrawWords(const paper::Font& font, const QString& text, double blank) {
  QFont face = tools_.measure.ReferenceFont(font);
  if (blank == 0 || text.isRightToLeft()) {
    face.setWordSpacing(blank);
    painter_.setFont(face);
    painter_.drawText(QPointF(), text);
    return;
  }
  painter_.setFont(face);
  paper::Font reference = font;
  reference.points = QtMeasure::kReferencePixels;
  double x = 0;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype found = text.indexOf(' ', at);
    const qsizetype end = found < 0 ? text.size() : found + 1;
    const QString word = text.mid(at, end - at);
    painter_.drawText(QPointF(x, 0), word);
    x += WidthOf(reference, FromQt(word)) + blank;
    at = end;
  }
}

void QtSurface::DrawRules(const paper::Font& font, double width, const paper::Color& color) {
  const QtMeasure::Lines lines = tools_.measure.LinesOf(font);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ToQt(color));
  for (const auto& [drawn, place] :
       {std::pair(font.underline, lines.underline), {font.strike, lines.strike}}) {
    if (drawn) painter_.drawRect(QRectF(0, -place - lines.width / 2, width, lines.width));
  }
}

// At least as wide as a dot of the device, so that no line fades away.
QPen QtSurface::PenOf(const paper::Stroke& stroke) const {
  const double dot = 1 / std::max(1e-6, std::sqrt(std::abs(painter_.deviceTransform().determinant())));
  QPen pen(ToQt(stroke.color), std::max(stroke.width, dot));
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  return pen;
}

void QtSurface::SetLook(const paper::Stroke* outline, const paper::Color* fill) {
  painter_.setPen(outline != nullptr ? PenOf(*outline) : QPen(Qt::NoPen));
  painter_.setBrush(fill != nullptr ? QBrush(ToQt(*fill)) : QBrush(Qt::NoBrush));
}

void QtSurface::DrawLine(paper::Point from, paper::Point to, const paper::Stroke& stroke) {
  painter_.setPen(PenOf(stroke));
  painter_.drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
}

void QtSurface::DrawBox(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) {
  SetLook(outline, fill);
  painter_.drawRect(ToQt(area));
}

void QtSurface::DrawEllipse(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) {
  SetLook(outline, fill);
  painter_.drawEllipse(ToQt(area));
}

void QtSurface::DrawPicture(const paper::Picture& picture, const paper::Area& area) {
  const QImage image = tools_.pictures.Decoded(picture);
  if (image.isNull()) {
    const paper::Stroke frame{.width = 0.5, .color = {128, 128, 128}};
    DrawBox(area, &frame, nullptr);
    return;
  }
  // PDF files hold other pictures as JPEG, which would smear the lines of a drawing.
  painter_.setRenderHint(QPainter::LosslessImageRendering, image.depth() <= 8);
  painter_.drawImage(ToQt(area), image);
}

QSize PixelsOf(const paper::Size& sheet, double zoom) {
  const auto side = [zoom](double points) {
    const double pixels = points * zoom * kScreenDotsPerInch / kPointsPerInch;
    return pixels > 1 ? std::min(pixels, 30000.0) : 1.0;  // not a number: 1
  };
  double width = side(sheet.width);
  double height = side(sheet.height);
  if (const double pixels = width * height; pixels > kMostPixels) {
    width = std::max(1.0, width * std::sqrt(kMostPixels / pixels));
    height = std::max(1.0, height * std::sqrt(kMostPixels / pixels));
  }
  return {static_cast<int>(std::lround(width)), static_cast<int>(std::lround(height))};
}

void DrawPage(const paper::Pages& pages, int page, PaperTools& tools, double zoom, QImage& image) {
  const QSize size = PixelsOf(pages.paper().size, zoom);
  if (image.size() != size || image.format() != QImage::Format_RGB32)
    image = QImage(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  const double scale = zoom * kScreenDotsPerInch / kPointsPerInch;
  painter.scale(scale, scale);
  QtSurface surface(tools, painter, pages.paper());
  pages.Draw(page, surface);
}

QtPagePicture::QtPagePicture(std::shared_ptr<PaperTools> tools, const paper::Paper& paper)
    : tools_(std::move(tools)),
      image_(PixelsOf(paper.size, 1), QImage::Format_RGB32),
      painter_(&image_),
      surface_(*tools_, painter_, paper) {
  Clear();
  painter_.scale(kScreenDotsPerInch / kPointsPerInch, kScreenDotsPerInch / kPointsPerInch);
}

void QtPagePicture::Clear() { painter_.fillRect(painter_.window(), Qt::white); }

void QtPagePicture::Save(const std::filesystem::path& file) const {
  QSaveFile saved(QString::fromStdU16String(file.u16string()));
  std::error_code ignored;
  const bool replaces = !exists(file, ignored) || is_regular_file(file, ignored);
  const bool written = replaces && saved.open(QIODevice::WriteOnly) &&
                       QImageWriter(&saved, "bmp").write(image_) && saved.commit();
  if (!written) throw Fault("The picture " + file.string() + " can't be written.");
}

}  // namespace tarvane::desktop
