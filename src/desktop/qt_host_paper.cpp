#include <QCoreApplication>
#include <QFontDialog>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/make.h"
#include "desktop/page_printer.h"
#include "desktop/qt_host.h"
#include "desktop/qt_paper.h"
#include "desktop/text.h"
#include "screen/busy.h"

// What the host does with paper.
namespace tarvane::desktop {
namespace {

constexpr int kPdfDotsPerInch = 1200;

constexpr double kLongestSide = 14400;  // points: what PDF allows

QPageSize PageSizeOf(const paper::Size& size) {
  const auto side = [](double points) { return points > 1 ? std::min(points, kLongestSide) : 1.0; };
  return QPageSize(QSizeF(side(size.width), side(size.height)), QPageSize::Point, {}, QPageSize::ExactMatch);
}

}  // namespace

PaperTools& QtHost::Tools() {
  if (!tools_) tools_ = std::make_shared<PaperTools>();
  return *tools_;
}

PagePrinter& QtHost::Printer() {
  if (!printer_) printer_ = std::make_unique<PagePrinter>(*this, Tools());
  return *printer_;
}

paper::Measure& QtHost::TextMeasure() { return Tools().measure; }

paper::Paper QtHost::PrinterPaper() { return Printer().Sheet(); }

bool QtHost::Print(const paper::Pages& pages, const PrintOrder& order) {
  return Printer().Print(pages, order, TopWindow());
}

void QtHost::SetUpPrinter() { Printer().SetUp(TopWindow()); }

std::optional<paper::Font> QtHost::ChooseFont(const paper::Font& font) {
  QFont initial(ToQt(font.name));
  initial.setPointSizeF(std::clamp(font.points, 1.0, 1000.0));
  initial.setBold(font.bold);
  initial.setItalic(font.italic);
  initial.setUnderline(font.underline);
  initial.setStrikeOut(font.strike);
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, initial, TopWindow(), "Font");
  if (accepted) {
    return paper::Font{.name = FromQt(chosen.family()),
                       .points = chosen.pointSizeF(),
                       .bold = chosen.bold(),
                       .italic = chosen.italic(),
                       .underline = chosen.underline(),
                       .strike = chosen.strikeOut()};
  }
  if (!forms_.empty()) forms_.back()->PutFocusBack();
  return std::nullopt;
}

std::string QtHost::SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                            std::string_view title) {
  QSaveFile saved(QString::fromStdU16String(file.u16string()));
  const auto fail = [&file](const QString& why) {
    throw Fault("The file " + file.string() + " can't be written: " + FromQt(why));
  };
  // The finished file takes the place of what is there, which a device or a folder would not survive.
  std::error_code ignored;
  if (exists(file, ignored) && !is_regular_file(file, ignored)) fail("it is no file.");
  if (!saved.open(QIODevice::WriteOnly)) fail(saved.errorString());
  std::string missing;
  {
    QPdfWriter writer(&saved);
    writer.setTitle(ToQt(title));
    writer.setCreator(ToQt(kProgramTitle));
    writer.setResolution(kPdfDotsPerInch);
    writer.setPageSize(PageSizeOf(pages.paper().size));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer)) fail("it can't be begun.");
    painter.scale(kPdfDotsPerInch / kPointsPerInch, kPdfDotsPerInch / kPointsPerInch);
    QtSurface surface(Tools(), painter, pages.paper(), [&] {
      if (!writer.newPage()) fail("no further page can be begun.");
    });
    const int count = pages.Count();
    const Progress progress(*this, "Writing the PDF file", count);
    for (int page = 0; page < count; ++page) {
      if (!ShowProgress("Writing the PDF file", page, count))
        throw Fault("Stopped. No PDF file was written.");
      if (page > 0) surface.NewPage();
      pages.Draw(page, surface);
    }
    missing = surface.missing();
    if (!painter.end()) fail(saved.errorString());
  }
  if (!saved.commit()) fail(saved.errorString());
  return missing;
}

std::unique_ptr<paper::PagePicture> QtHost::MakePagePicture(const paper::Paper& paper) {
  Tools();
  return std::make_unique<QtPagePicture>(tools_, paper);
}

void QtHost::SendMail(std::string_view address, std::string_view subject,
                      const std::filesystem::path& attachment) {
  const QString program = QStandardPaths::findExecutable("xdg-email");
  if (program.isEmpty()) throw Fault("No mail program is set up here.");
  QStringList arguments = {"--utf8", "--subject", ToQt(subject)};
  if (!attachment.empty())
    arguments << "--attach" << QString::fromStdU16String(absolute(attachment).u16string());
  // It would take anything else for an option of its own.
  if (address.find('@') != std::string_view::npos && !address.starts_with('-')) arguments << ToQt(address);
  auto* mail = Make<QProcess>(QCoreApplication::instance());
  QObject::connect(mail, &QProcess::finished, mail, &QObject::deleteLater);
  mail->start(program, arguments);
  // Some mail programs stay with it until they are closed, others leave at once.
  constexpr int kPatience = 3000;  // milliseconds
  const bool ended = mail->waitForFinished(kPatience);
  const bool failed = ended ? mail->exitCode() != 0 : mail->state() == QProcess::NotRunning;
  if (!failed) return;
  mail->deleteLater();
  throw Fault("No mail program could be started.");
}

}  // namespace tarvane::desktop
