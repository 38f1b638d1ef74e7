// What all catalogues share, on the suppliers.
#include "catalogues/catalogue.h"

#include <gmock/gmock.h>

#include "catalogues/suppliers.h"
#include "store/ordinary_user.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::catalogues {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::string_view kTable = "Suppliers";

class CatalogueTest : public testing::Test {
 protected:
  CatalogueTest() {
    folder_.MakeFile(kTable);
    for (const char* name : {"Ash", "Birch", "birchwood", "Cedar"}) Put({{"SuppliersName", name}});
  }
  void Put(const RowValues& values) const { folder_.AddRow(kTable, values); }

  // Runs `step` on a fresh screen while it is shown; what it tells lies in host_.
  void Show(std::function<void(frmSuppliers2&)> step) {
    Shop shop(folder_.path());
    frmSuppliers2 screen(host_, shop);
    host_.OnShow<frmSuppliers2>(std::move(step));
    screen.RunAsMain();
  }
  static void SearchFor(frmSuppliers2& s, std::string_view column, std::string_view text) {
    s.Search.CboFabSearch.UserType(column);
    s.Search.FabSText.UserType(text);
    s.Search.FabSText.UserEnterKey();
  }
  static std::vector<std::string> Names(frmSuppliers2& s) {
    std::vector<std::string> names;
    for (int row = 1; row <= s.MSFlexGrid1.RowCount(); ++row) names.push_back(s.MSFlexGrid1.Cell(row, 2));
    return names;
  }
  std::vector<std::string> Stored() const {
    std::vector<std::string> names;
    for (int at = 0; at < folder_.Count(kTable); ++at)
      names.push_back(folder_.Stored(kTable, at, "SuppliersName"));
    return names;
  }

  ShopFolder folder_;
  FakeHost host_;
};

TEST_F(CatalogueTest, SearchesResetsAndSteps) {
  Show([this](frmSuppliers2& s) {
    EXPECT_EQ(s.Records.Caption.caption(), "Supplier Record: 1/4");
    SearchFor(s, "SuppliersName", "birch");
    EXPECT_THAT(host_.messages, ElementsAre("2 matches found."));
    EXPECT_THAT(Names(s), ElementsAre("Birch", "birchwood"));
    EXPECT_EQ(s.Records.Caption.caption(), "Supplier Record: 1/2");
    EXPECT_EQ(s.Search.FabSText.text(), "");
    EXPECT_EQ(s.Search.CboFabSearch.text(), Finder::kPrompt);

    // What breaks or isn't there is passed over in silence, and the rows stay.
    for (const auto& [column, text] : {std::pair("SuppliersName", "b'x"), std::pair("Nothing", "b")}) {
      SearchFor(s, column, text);
      EXPECT_EQ(s.MSFlexGrid1.RowCount(), 2) << text;
    }
    SearchFor(s, "SuppliersName", "[");
    EXPECT_EQ(host_.messages.back(), "0 matches found.");
    EXPECT_EQ(s.SuppliersName.text(), "");
    EXPECT_EQ(s.Records.Caption.caption(), "");
    s.Records.CmdNext.UserPress();
    s.Update.UserPress();
    s.CmdDelete.UserPress();
    EXPECT_EQ(host_.messages.size(), 2u) << "nothing to do without a row";

    s.Search.CmdReset.UserPress();
    EXPECT_EQ(s.Records.Caption.caption(), "Supplier Record: 1/4");
    EXPECT_EQ(s.focus(), &s.Search.FabSText);
    s.Records.CmdLast.UserPress();
    EXPECT_EQ(s.SuppliersName.text(), "Cedar");
    s.MSFlexGrid1.UserSelectRow(2);
    EXPECT_EQ(s.SuppliersName.text(), "Birch");
    s.MSFlexGrid1.UserOpenRow(3);
    EXPECT_EQ(s.SuppliersName.text(), "birchwood");
    EXPECT_EQ(s.focus(), &s.SuppliersName);
  });
}

// However its row is left, what was typed is on the disk.
TEST_F(CatalogueTest, APendingEditIsCommittedAsItsRowIsLeft) {
  const std::vector<std::function<void(frmSuppliers2&)>> ways = {
      [](frmSuppliers2& s) { s.Records.CmdNext.UserPress(); },
      [](frmSuppliers2& s) { s.MSFlexGrid1.UserSelectRow(3); },
      [](frmSuppliers2& s) { SearchFor(s, "SuppliersName", "zz"); },
      [](frmSuppliers2& s) { s.Search.CmdReset.UserPress(); },
      [](frmSuppliers2& s) { s.CmdFabAdd.UserPress(); },
      [](frmSuppliers2& s) { s.GoToKey("4"); },
      [](frmSuppliers2& s) { s.CmdCancel.UserPress(); },
      [](frmSuppliers2& s) { s.UserClose(); },
  };
  for (std::size_t way = 0; way < ways.size(); ++way) {
    const std::string name = "Way " + std::to_string(way);
    Show([&](frmSuppliers2& s) {
      s.SuppliersName.UserType(name);
      ways[way](s);
    });
    EXPECT_EQ(folder_.Stored(kTable, 0, "SuppliersName"), name);
  }
}

TEST_F(CatalogueTest, AddsAtOnceAndDeletesAfterAQuestion) {
  Show([this](frmSuppliers2& s) {
    s.CmdFabAdd.UserPress();
    EXPECT_EQ(s.Records.Caption.caption(), "Record: 5");
    EXPECT_EQ(s.SuppliersID.text(), "5");
    EXPECT_EQ(s.focus(), &s.SuppliersName);
    s.SuppliersName.UserType("Deal");
    s.Update.UserPress();
    EXPECT_EQ(s.Messages.caption(), "Saved.");
    for (const auto answer : {Answer::kNo, Answer::kYes}) {
      host_.answers = {answer};
      s.CmdDelete.UserPress();
      EXPECT_EQ(s.MSFlexGrid1.RowCount(), answer == Answer::kNo ? 5 : 4);
    }
    EXPECT_EQ(host_.questions.back().text,
              "Once deleted data cannot be recovered.\nDelete item Deal.  Are You Sure? ");
    EXPECT_EQ(host_.questions.back().preset, Answer::kNo);
    EXPECT_EQ(s.SuppliersName.text(), "Cedar");
    s.CmdFabAdd.UserPress();
    EXPECT_EQ(s.SuppliersID.text(), "6") << "a number isn't given twice";
  });
  EXPECT_THAT(Stored(), ElementsAre("Ash", "Birch", "birchwood", "Cedar", ""));
}

TEST_F(CatalogueTest, WhatCantBeSavedIsToldAndKeepsTheScreen) {
  for (const auto& path : {folder_.path(), folder_.path() / "Dat"})
    std::filesystem::permissions(path, std::filesystem::perms(0755));
  std::filesystem::permissions(folder_.FileOf(kTable), std::filesystem::perms(0444));
  const OrdinaryUser user;
  Show([this](frmSuppliers2& s) {
    s.SuppliersName.UserType("Oak");
    s.Records.CmdNext.UserPress();
    EXPECT_THAT(host_.messages.back(), HasSubstr("read-only"));
    EXPECT_EQ(s.SuppliersName.text(), "Oak");
    host_.answers = {Answer::kNo};
    s.CmdCancel.UserPress();
    EXPECT_FALSE(s.is_closed());
    host_.answers = {Answer::kYes};
    s.CmdCancel.UserPress();
    EXPECT_TRUE(s.is_closed());
  });
}

TEST_F(CatalogueTest, AMissingOrForeignFileIsToldAndNoScreenComes) {
  for (const char* content : {"", "not a database at all"}) {
    std::filesystem::remove(folder_.FileOf(kTable));
    if (*content != 0) folder_.Write(data_file::kSuppliers, content);
    Shop shop(folder_.path());
    frmSuppliers2 screen(host_, shop);
    EXPECT_THROW(screen.RunAsMain(), Fault);
  }
  EXPECT_THAT(host_.shown, IsEmpty());
}

TEST_F(CatalogueTest, MailAndSitesAreHandedOver) {
  Put({{"Email", "a@example.com"}, {"WebSite", "www.example.com"}});
  Show([this](frmSuppliers2& s) {
    s.Command2.UserPress();
    s.Command3.UserPress();
    EXPECT_EQ(host_.beeps, 2);
    EXPECT_THAT(host_.messages, ElementsAre("I Need an Email Address", "I Need the Web Site Address"));
    s.Records.CmdLast.UserPress();
    s.Command2.UserPress();
    s.Command3.UserPress();
    s.Command5.UserPress();
    EXPECT_THAT(host_.launched, ElementsAre("mailto:a@example.com", "https://www.example.com"));
    EXPECT_EQ(host_.beeps, 3);
  });
}

}  // namespace
}  // namespace tarvane::catalogues
