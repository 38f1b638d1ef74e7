#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QListView>
#include <QPageRanges>
#include <QPrinter>
#include <QScrollBar>
#include <QSlider>
#include <fstream>
#include <iterator>

#include "desktop/page_printer.h"
#include "desktop/page_widget.h"
#include "desktop/shop_test.h"
#include "desktop/shown_form.h"
#include "printing/preview.h"
#include "support/temporary_folder.h"

namespace tarvane::desktop {
namespace {

// Pages that a function draws.
class DrawnPages : public paper::Pages {
 public:
  using Drawing = std::function<void(int, paper::Surface&)>;
  DrawnPages(int count, Drawing draw, paper::Paper paper = {})
      : count_(count), draw_(std::move(draw)), paper_(paper) {}
  int Count() const override { return count_; }
  const paper::Paper& paper() const override { return paper_; }
  void Draw(int page, paper::Surface& surface) const override { draw_(page, surface); }

 private:
  int count_;
  Drawing draw_;
  paper::Paper paper_;
};

// Where something was drawn, in points.
QRectF Ink(const QImage& image, double zoom) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
    }
  }
  const double scale = kScreenDotsPerInch / kPointsPerInch * zoom;
  return {ink.x() / scale, ink.y() / scale, ink.width() / scale, ink.height() / scale};
}

QRectF InkOf(const DrawnPages::Drawing& draw, double zoom = 4) {
  PaperTools tools;
  QImage image;
  DrawPage(DrawnPages(1, draw, {{200, 100}, {}}), 0, tools, zoom, image);
  return Ink(image, zoom);
}

TEST(QtPaperTest, TextsAreAsWideAsTheyAreMeasured) {
  QtMeasure measure;
  const paper::Font fonts[] = {
      {.name = "Arial"}, {.name = "Times New Roman", .bold = true}, {.name = "none such"}};
  for (const paper::Font& font : fonts) {
    for (const char* text : {"office fine AVAVA To.",
                             "Caf\xC3\xA9 \xE2\x82\xAC\xC2\xA0"
                             "9 \xE2\x80\x94 ",
                             "\xCE\xB1\xD0\x96", "a\xCC\x81 \xD7\x90\xD7\x91 x", ""}) {
      const double shaped = QFontMetricsF(measure.ReferenceFont(font)).horizontalAdvance(ToQt(text));
      EXPECT_NEAR(measure.WidthOf(font, text), shaped * 10 / QtMeasure::kReferencePixels, 0.01) << text;
    }
    // What is drawn ends where the measure says, also where the blanks are spread.
    const std::string text = "HMM MMM HMMH";
    for (const double blank : {0.0, 7.0}) {
      const QRectF ink = InkOf([&](int, paper::Surface& surface) {
        surface.DrawText({20, 50}, font, text, {.color = {}, .blank = blank});
      });
      EXPECT_NEAR(ink.right(), 20 + measure.WidthOf(font, text) + 2 * blank, 1.5);
      EXPECT_NEAR(ink.bottom(), 50, 0.6) << "stands on its base line";
    }
  }
}

// What is drawn, and the part of the sheet that it covers.
TEST(QtPaperTest, EverythingIsDrawnWhereItBelongs) {
  QByteArray png;
  QBuffer buffer(&png);
  QImage black(4, 4, QImage::Format_RGB32);
  black.fill(Qt::black);
  black.save(&buffer, "PNG");
  const paper::Picture picture{paper::Picture::Format::kPng, png.toStdString(), 10, 10};
  const paper::Picture broken{paper::Picture::Format::kPng, "no picture", 10, 10};
  const paper::Color dark;
  const paper::Stroke thin{0.01, {}};
  const paper::Font lined{.points = 20, .underline = true, .strike = true};
  const std::tuple<const char*, DrawnPages::Drawing, QRectF> cases[] = {
      {"line",
       [&](int, auto& s) {
         s.DrawLine({10, 20}, {110, 20}, thin);
       },
       {10, 20, 100, 1}},
      {"box",
       [&](int, auto& s) {
         s.DrawBox({10, 20, 60, 50}, nullptr, &dark);
       },
       {10, 20, 50, 30}},
      {"ellipse",
       [&](int, auto& s) {
         s.DrawEllipse({10, 20, 60, 50}, &thin, nullptr);
       },
       {10, 20, 50, 30}},
      {"picture",
       [&](int, auto& s) {
         s.DrawPicture(picture, {10, 20, 60, 50});
       },
       {10, 20, 50, 30}},
      {"unreadable",
       [&](int, auto& s) {
         s.DrawPicture(broken, {10, 20, 60, 50});
       },
       {10, 20, 50, 30}},
      {"upwards",
       [&](int, auto& s) {
         s.DrawText({50, 90}, {.points = 20}, "IIIIII", {.color = {}, .angle = 90});
       },
       {37, 59, 13, 31}},
      {"beside",
       [&](int, auto& s) {
         s.DrawText({-500, 900}, {}, "off the sheet", {});
       },
       {}},
  };
  for (const auto& [what, draw, place] : cases) {
    const QRectF ink = InkOf(draw);
    EXPECT_TRUE(ink.adjusted(-2, -2, 2, 2).contains(place) || place.isNull()) << what << " too small";
    EXPECT_TRUE(place.adjusted(-2, -2, 2, 2).contains(ink) || ink.isNull())
        << what << " too large " << ink.x() << " " << ink.y() << " " << ink.width() << " " << ink.height();
    EXPECT_EQ(ink.isNull(), place.isNull()) << what;
  }
  const QRectF blanks = InkOf([&](int, auto& s) { s.DrawText({20, 50}, lined, "   ", {}); });
  EXPECT_GT(blanks.width(), 15) << "blanks are underlined too";
  EXPECT_TRUE(blanks.top() < 46 && blanks.bottom() > 50) << "and struck through";
}

TEST(QtPaperTest, SheetsOfAnySizeCanBeHeld) {
  const double nan = std::nan("");
  for (const paper::Size& size : {paper::Size{0, 0}, {-5, nan}, {1e9, 1e9}, {1e9, 1}}) {
    const QSize pixels = PixelsOf(size, 2);
    EXPECT_TRUE(pixels.width() >= 1 && pixels.height() >= 1);
    EXPECT_LE(double(pixels.width()) * pixels.height(), 70e6);
  }
}

class HostPaperTest : public testing::Test {
 protected:
  static std::string Content(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  // What a program of the platform says of the file; "?" where there is no such program.
  static std::string Told(const std::string& command, const std::filesystem::path& file) {
    const TemporaryFolder folder;
    const auto told = folder.path() / "told";
    const int result = std::system((command + " " + file.string() + " > " + told.string() + " 2>&1").c_str());
    return WEXITSTATUS(result) == 127 ? "?" : Content(told);
  }

  QtHost host_;
  TemporaryFolder folder_;
};

TEST_F(HostPaperTest, APdfFileHasEveryTextAndIsThereWholeOrNotAtAll) {
  const auto file = folder_.path() / "kept.pdf";
  const DrawnPages pages(
      3,
      [](int page, paper::Surface& surface) {
        surface.DrawText({72, 72}, {}, "Caf\xC3\xA9 office, page " + std::to_string(page + 1), {});
        surface.DrawText({72, 90}, {}, "\xF4\x80\x80\x80", {});
      },
      {{300, 200}, {}});
  EXPECT_EQ(host_.SavePdf(pages, file, "Kept"), "\xF4\x80\x80\x80") << "no font has it";
  const std::string whole = Content(file);
  EXPECT_EQ(whole.substr(0, 5), "%PDF-");
  const std::pair<const char*, const char*> tools[] = {
      {"qpdf --check", "No syntax or stream encoding errors"},
      {"pdftotext", ""},
      {"pdfinfo", "300 x 200 pts"},
      {"pdffonts", "yes no  yes"}};
  for (const auto& [command, told] : tools) {
    const std::string said = Told(command, file);
    EXPECT_TRUE(said == "?" || said.find(told) != std::string::npos) << command << said;
  }
  if (Told("pdftotext -v", "") != "?") {
    const std::string text = Content(folder_.path() / "kept.txt");
    for (const char* page : {"1", "2", "3"})
      EXPECT_THAT(text, testing::HasSubstr("Caf\xC3\xA9 office, page " + std::string(page)));
  }

  const DrawnPages broken(2, [](int page, paper::Surface&) {
    if (page == 1) throw Fault("The page can't be made.");
  });
  EXPECT_THROW(host_.SavePdf(broken, file, ""), Fault);
  EXPECT_EQ(Content(file), whole) << "what stood there before stays";
  EXPECT_THROW(host_.SavePdf(pages, folder_.path() / "none" / "kept.pdf", ""), Fault);
  // A place that the finished file must not take.
  const auto pipe = folder_.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THROW(host_.SavePdf(pages, pipe, ""), Fault);
  EXPECT_TRUE(is_fifo(pipe));
}

TEST_F(HostPaperTest, WithoutAPrinterItIsToldAndTheSheetIsA4) {
  EXPECT_EQ(host_.PrinterPaper(), paper::Paper{});
  const DrawnPages pages(1, [](int, paper::Surface&) {});
  for (const bool ask : {true, false}) EXPECT_THROW(host_.Print(pages, {.title = "", .ask = ask}), Fault);
  EXPECT_THROW(host_.SetUpPrinter(), Fault);
}

TEST_F(HostPaperTest, APagePictureStartsWhiteAfterEachPageAndIsKeptAsABitmap) {
  const auto picture = host_.MakePagePicture({{72, 36}, {}});
  const auto saved = [&] {
    picture->Save(folder_.path() / "page.bmp");
    return QImage(ToQt((folder_.path() / "page.bmp").string()));
  };
  const paper::Color red{200, 0, 0};
  picture->DrawBox({0, 0, 36, 36}, nullptr, &red);
  const QImage drawn = saved();
  EXPECT_EQ(drawn.size(), QSize(96, 48));
  EXPECT_EQ(drawn.pixelColor(24, 24), QColor(200, 0, 0));
  EXPECT_EQ(drawn.pixelColor(72, 24), QColor(Qt::white));
  picture->NewPage();
  EXPECT_EQ(saved().pixelColor(24, 24), QColor(Qt::white));
  EXPECT_THROW(picture->Save(folder_.path()), Fault);
}

// A mail program that writes down what it was called with.
TEST_F(HostPaperTest, MailGoesThroughThePlatformsProgramOrIsAFault) {
  const QByteArray path = qgetenv("PATH");
  const auto file = folder_.path() / "a file.pdf";
  const auto send = [&](std::string_view address) { host_.SendMail(address, "Estimate", file); };
  const auto program = folder_.path() / "xdg-email";
  const auto install = [&](const std::string& result) {
    std::ofstream(program) << "#!/bin/sh\nfor each; do echo \"$each\"; done > " << folder_.path() / "told"
                           << "\nexit " << result << "\n";
    permissions(program, std::filesystem::perms::owner_all);
  };
  qputenv("PATH", folder_.path().c_str());
  EXPECT_THROW(send("a@b.example"), Fault);
  install("0");
  send("a@b.example");
  const std::string attached = "--utf8\n--subject\nEstimate\n--attach\n" + file.string() + "\n";
  EXPECT_EQ(Content(folder_.path() / "told"), attached + "a@b.example\n");
  send("--help@");
  EXPECT_EQ(Content(folder_.path() / "told"), attached) << "no option in disguise";
  install("3");
  EXPECT_THROW(send("a@b.example"), Fault);
  qputenv("PATH", path);
}

TEST(SheetsTest, FollowRangeOrderAndCopies) {
  struct Case {
    const char* ranges;
    int copies;
    bool collate, reversed;
    std::vector<int> sheets;
  };
  const Case cases[] = {{"", 1, true, false, {0, 1, 2, 3}},
                        {"2-3", 1, true, false, {1, 2}},
                        {"1,3-9", 2, true, false, {0, 2, 3, 0, 2, 3}},
                        {"2-3", 2, false, false, {1, 1, 2, 2}},
                        {"", 1, true, true, {3, 2, 1, 0}},
                        {"7-9", 1, true, false, {}}};
  for (const Case& each : cases) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);  // it makes no copies itself
    const QString ranges = each.ranges;
    printer.setPrintRange(ranges.isEmpty() ? QPrinter::AllPages : QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(ranges));
    printer.setCopyCount(each.copies);
    printer.setCollateCopies(each.collate);
    printer.setPageOrder(each.reversed ? QPrinter::LastPageFirst : QPrinter::FirstPageFirst);
    EXPECT_EQ(SheetsOf(printer, 4), each.sheets) << each.ranges;
  }
}

// The preview as a window, over pages that count how often each is drawn.
class PreviewFormTest : public testing::Test {
 protected:
  void Open(int count, const std::function<void(Form&, printing::frmPreview&)>& look) {
    const DrawnPages pages(count, [this](int page, paper::Surface& surface) {
      ++drawn_[page];
      surface.DrawText({72, 72}, {}, "Page", {});
    });
    host_.OnShown([&](Form& form) {
      ToFront(form.window());
      form.window()->resize(700, 600);
      Settle();
      look(form, dynamic_cast<printing::frmPreview&>(form.screen()));
      form.screen().Close();
    });
    printing::frmPreview preview(host_, pages, {});
    Screen(host_, "Opener").ShowModal(preview);
  }

  TrialHost host_;
  std::map<int, int> drawn_;
};

TEST_F(PreviewFormTest, DrawsThePageThatIsLookedAtAndNoOther) {
  Open(1000, [this](Form& form, printing::frmPreview& preview) {
    EXPECT_EQ(drawn_, (std::map<int, int>{{0, 1}}));
    form.window()->resize(720, 620);
    Settle();
    EXPECT_EQ(drawn_[0], 1) << "it is kept";
    auto* page = dynamic_cast<PageWidget*>(form.WidgetOf(preview.picChild));
    ASSERT_TRUE(page->hasFocus());
    QScrollBar* bar = page->verticalScrollBar();
    Key(Qt::Key_PageDown);
    EXPECT_TRUE(preview.picChild.page() == 0 && bar->value() > 0) << "first down the page";
    while (preview.picChild.page() == 0) Key(Qt::Key_PageDown);
    EXPECT_TRUE(preview.picChild.page() == 1 && bar->value() == 0);
    EXPECT_EQ(drawn_, (std::map<int, int>{{0, 1}, {1, 1}}));
    Key(Qt::Key_PageUp);
    EXPECT_EQ(preview.picChild.page(), 0);
    Key(Qt::Key_End);
    EXPECT_EQ(preview.picChild.page(), 999);
    EXPECT_TRUE(page->hasFocus()) << "the keyboard stays with the page";
    EXPECT_EQ(page->accessibleName(), "Page 1000 of 1000");
    auto* strip = qobject_cast<QListView*>(form.WidgetOf(preview.tabPreview));
    EXPECT_EQ(strip->currentIndex().row(), 999);
    EXPECT_EQ(strip->currentIndex().data().toString(), "Page 1000");
    Click(strip->viewport(), strip->visualRect(strip->model()->index(997, 0)).center());
    EXPECT_EQ(preview.picChild.page(), 997);
    auto* slider = qobject_cast<QSlider*>(form.WidgetOf(preview.Slider1));
    EXPECT_EQ(slider->value(), 998);
    slider->setValue(3);
    Settle();
    EXPECT_EQ(preview.picChild.page(), 2);
    EXPECT_EQ(drawn_.size(), 5U);
  });
}

TEST_F(PreviewFormTest, KeysZoomThePageAndNotTheText) {
  Open(1, [](Form& form, printing::frmPreview& preview) {
    auto* page = dynamic_cast<PageWidget*>(form.WidgetOf(preview.picChild));
    const int text = QApplication::font().pointSize();
    const int width = page->SheetPlace().width();
    page->verticalScrollBar()->setValue(50);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(preview.zoom(), 110);
    EXPECT_NEAR(page->SheetPlace().width(), width * 1.1, 1);
    EXPECT_EQ(page->verticalScrollBar()->value(), 0);
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(preview.zoom(), 30);
    EXPECT_EQ(QApplication::font().pointSize(), text);
    const QRect room = page->viewport()->rect();
    EXPECT_NEAR(page->SheetPlace().center().x(), room.center().x(), 1) << "in the middle";
    EXPECT_EQ(page->verticalScrollBar()->maximum(), 0);
    Key(Qt::Key_Escape);
    EXPECT_TRUE(preview.is_closed());
  });
}

TEST_F(PreviewFormTest, APictureTakesThePlaceOfThePages) {
  const TemporaryFolder folder;
  QImage red(40, 20, QImage::Format_RGB32);
  red.fill(Qt::red);
  red.save(ToQt((folder.path() / "red.bmp").string()));
  std::ofstream(folder.path() / "none.bmp") << "no picture";
  Open(2, [&](Form& form, printing::frmPreview& preview) {
    auto* page = dynamic_cast<PageWidget*>(form.WidgetOf(preview.picChild));
    preview.picChild.SetPicture(folder.path() / "red.bmp");
    preview.picChild.SetZoom(50);
    Settle();
    EXPECT_EQ(page->SheetPlace().size(), QSize(20, 10));
    const QImage seen = page->viewport()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(page->SheetPlace().center()), QColor(Qt::red));
    preview.picChild.SetPicture(folder.path() / "none.bmp");
    Settle();
    EXPECT_TRUE(page->SheetPlace().isEmpty());
    preview.picChild.SetPicture({});
    Settle();
    EXPECT_GT(page->SheetPlace().width(), 300);
  });
}

}  // namespace
}  // namespace tarvane::desktop
