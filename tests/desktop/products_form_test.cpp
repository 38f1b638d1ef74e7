#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>
#include <random>

#include "app/show.h"
#include "catalogues/products.h"
#include "desktop/barcode_drawing.h"
#include "desktop/scanner.h"
#include "desktop/shop_test.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using testing::StartsWith;

using catalogues::BarcodeBars;
using catalogues::BarcodeTables;
using catalogues::FrmFabricDatabase2;

BarcodeTables LaidDownTables() {
  const std::filesystem::path data = TARVANE_DATA_DIR;
  return catalogues::ParseBarcodeTables(ReadFile(data / "char.txt").value(),
                                        ReadFile(data / "binary.txt").value());
}

TEST(BarcodeDrawingTest, AScannerReadsWhatWasDrawn) {
  std::vector<std::string> codes = {"0",
                                    "Z",
                                    "12",
                                    "A-1",
                                    "TC-24",
                                    "SHELF 7/B",
                                    "  BLANKS ",
                                    "<<>>",
                                    "<1>",
                                    "50% OFF: $3.99 (NET)",
                                    " !\"#$%&'()*+,-./0123456789:;<=>?",
                                    "@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_"};
  std::mt19937 dice(7);  // NOLINT(bugprone-random-generator-seed): the same codes each time
  for (int i = 0; i < 40; ++i) {
    codes.emplace_back();
    for (int digit = 0; digit < 13; ++digit) codes.back() += static_cast<char>('1' + dice() % 8);
  }
  const BarcodeTables tables = LaidDownTables();
  BarcodeDrawing drawing;
  for (const std::string& code : codes) {
    drawing.Show(BarcodeBars(tables, code), "");
    const int units = static_cast<int>(BarcodeBars(tables, code).size()) + 20;
    for (const int width : {units, units + 17, units * 2 + 5, 2000}) {
      drawing.resize(width, 50);
      const QImage picture = drawing.grab().toImage();
      EXPECT_EQ(Scan(picture), code + "\n") << width;
    }
  }
}

TEST(BarcodeDrawingTest, BarsAreWholeDotsBetweenQuietZones) {
  BarcodeDrawing drawing;
  drawing.Show("1101", "");
  drawing.resize(24 * 2 + 1, 50);
  const QImage picture = drawing.grab().toImage();
  const int y = picture.height() / 2;
  for (int x = 0; x < 48; ++x) {
    const bool bar = x >= 20 && x < 28 && x / 2 != 12;
    EXPECT_EQ(picture.pixelColor(x, y), QColor(bar ? Qt::black : Qt::white)) << x;
  }
}

TEST(BarcodeDrawingTest, SaysWhyThereAreNoBars) {
  BarcodeDrawing drawing;
  drawing.resize(300, 50);
  EXPECT_EQ(FromQt(drawing.note()), "");
  const QImage blank = drawing.grab().toImage();
  drawing.Show("", "no barcode for this text");
  EXPECT_EQ(FromQt(drawing.note()), "no barcode for this text");
  EXPECT_NE(drawing.grab().toImage(), blank);
  drawing.Show(std::string(281, '1'), "");
  EXPECT_EQ(FromQt(drawing.note()), "too long to be drawn here");
  drawing.resize(301, 50);
  EXPECT_EQ(FromQt(drawing.note()), "");
}

// The window over a shop with three products.
class ProductsFormTest : public ShopTest {
 protected:
  ProductsFormTest() {
    RowSet rows;
    rows.Open(shop_.database(data_file::kProducts), "Products");
    while (rows.HasRow()) rows.Delete();
    for (const auto& [name, code] : {std::pair("Oak Pole", "1111111111111"),
                                     {"Tarn Check", "2222222222222"},
                                     {"Voile", "3333333333333"}}) {
      rows.AddNew();
      rows.SetValue("ProductName", name);
      rows.SetValue("BarCode", code);
      rows.SetValue("SellingPrice", "24");
      rows.Update();
    }
  }
  void ShowProducts(const std::function<void(Form&, FrmFabricDatabase2&)>& look) {
    Run([&](Form& form) {
      if (&form.screen() == &main_) {
        auto products = app::MakeScreen<FrmFabricDatabase2>(main_);
        products.ForCurtainWizard([this](std::string_view text, std::string_view price) {
          taken_ += std::string(text) + "=" + std::string(price);
        });
        main_.ShowModal(products);
      } else if (auto* products = dynamic_cast<FrmFabricDatabase2*>(&form.screen())) {
        ToFront(form.window());
        look(form, *products);
      }
    });
  }
  static BarcodeDrawing& DrawingOf(const Form& form) {
    for (QWidget* widget : form.window()->findChildren<QWidget*>()) {
      if (auto* drawing = dynamic_cast<BarcodeDrawing*>(widget)) return *drawing;
    }
    throw Fault("no drawing");
  }
  std::string taken_;
};

TEST_F(ProductsFormTest, TypeEnterEnterPutsAFabricIn) {
  ShowProducts([](Form&, FrmFabricDatabase2& products) {
    Type("voi");
    EXPECT_EQ(products.Search.CboFabSearch.text(), "ProductName");
    Type("\n");
    EXPECT_THAT(products.Messages.caption(), StartsWith("1 matches found. ID: "));
    EXPECT_EQ(products.ProductName.text(), "Voile");
    EXPECT_FALSE(products.is_closed());
    Type("\n");
    EXPECT_TRUE(products.is_closed());
  });
  EXPECT_EQ(taken_, " Voile =24");
}

TEST_F(ProductsFormTest, AScannedCodeIsSearchedAsOne) {
  ShowProducts([](Form& form, FrmFabricDatabase2& products) {
    Type("2222222222222\n");
    EXPECT_THAT(products.Messages.caption(), StartsWith("1 matches found. ID: "));
    EXPECT_EQ(products.ProductName.text(), "Tarn Check");
    // After a search no category is chosen: what is typed tells it again.
    Focus(WidgetOf(form, products.Search.FabSText));
    Type("*pole\n");
    EXPECT_THAT(products.Messages.caption(), StartsWith("1 matches found. ID: "));
    EXPECT_EQ(products.ProductName.text(), "Oak Pole");
    products.Search.CboFabSearch.UserType("SuppliersName");
    Focus(WidgetOf(form, products.Search.FabSText));
    Type("1");
    EXPECT_EQ(products.Search.CboFabSearch.text(), "SuppliersName") << "what the worker chose stays";
  });
}

TEST_F(ProductsFormTest, TheBarsFollowWhatIsTypedInDarkWindowsToo) {
  Theme dark = CurrentTheme();
  const Theme before = dark;
  dark.scheme = ColourScheme::kDark;
  ApplyTheme(dark);
  ShowProducts([](Form& form, FrmFabricDatabase2& products) {
    BarcodeDrawing& drawing = DrawingOf(form);
    const auto scan = [&drawing] { return Scan(drawing.grab().toImage()); };
    EXPECT_EQ(scan(), "1111111111111\n");
    products.Records.CmdNext.UserPress();
    Settle();
    EXPECT_EQ(scan(), "2222222222222\n");
    Focus(WidgetOf(form, products.BarCode));
    Key(Qt::Key_A, Qt::ControlModifier);
    Type("AB 12");
    EXPECT_EQ(scan(), "AB 12\n");
    Type("c");
    EXPECT_EQ(FromQt(drawing.note()), "no barcode for this text");
    Key(Qt::Key_A, Qt::ControlModifier);
    Type("\b");
    EXPECT_EQ(scan() + FromQt(drawing.note()), "");
  });
  ApplyTheme(before);
}

TEST_F(ProductsFormTest, WithoutTablesAllButTheBarsWorks) {
  std::filesystem::remove(folder_.folder() / "binary.txt");
  ShowProducts([](Form& form, FrmFabricDatabase2& products) {
    EXPECT_EQ(Scan(DrawingOf(form).grab().toImage()) + FromQt(DrawingOf(form).note()), "");
    Focus(WidgetOf(form, products.BarCode));
    Type("9");
    products.Update.UserPress();
    EXPECT_EQ(products.Messages.caption(), "Saved.");
    products.CmdUseInCW.UserPress();
  });
  EXPECT_EQ(taken_, " Oak Pole =24");
}

}  // namespace
}  // namespace tarvane::desktop
