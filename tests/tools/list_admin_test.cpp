#include "tools/list_admin.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListAdminTest : public testing::Test {
 protected:
  ListAdminTest() { lists_.emplace(host_, folder_.path()); }
  void Choose(std::size_t option) { lists_->Options[option].UserSet(true); }
  std::vector<const Button*> EditButtons() const {
    return {&lists_->CMDADD, &lists_->CMDCLEAR, &lists_->CMDDELETE, &lists_->CMDSAVE};
  }

  ShopFolder folder_;
  FakeHost host_;
  std::optional<FrmListAdmin> lists_;
};

TEST_F(ListAdminTest, LoadsEditsAndSaves) {
  folder_.Write("tiebackslist.dat", "Small\r\n Large \r\n");  // found whatever its case
  Choose(1);
  for (const Button* button : EditButtons()) EXPECT_FALSE(button->enabled()) << button->name();
  lists_->CMDLOAD.UserPress();
  EXPECT_THAT(lists_->lstData.entries(), ElementsAre("Small", " Large "));
  EXPECT_EQ(lists_->txtLog.text(), (folder_.path() / "tiebackslist.dat").string());
  for (const Button* button : EditButtons()) EXPECT_TRUE(button->enabled()) << button->name();
  EXPECT_FALSE(lists_->CMDLOAD.enabled());

  host_.inputs = {"Medium", ""};
  lists_->CMDADD.UserPress();
  lists_->lstData.UserOpen(-1);
  lists_->lstData.UserPick(0);
  lists_->CMDDELETE.UserPress();
  lists_->CMDSAVE.UserPress();
  EXPECT_EQ(folder_.Read("tiebackslist.dat"), " Large \r\nMedium\r\n\r\n");
  EXPECT_THAT(host_.messages, ElementsAre("List has been saved"));
  EXPECT_THAT(host_.titles, ElementsAre("Tarvane Lists"));
  EXPECT_FALSE(lists_->changed());
  lists_->UserClose();
  EXPECT_TRUE(lists_->is_closed());
}

TEST_F(ListAdminTest, UnsavedChangesKeepListAndScreen) {
  lists_->CMDNEW.UserPress();
  host_.inputs = {std::nullopt};
  lists_->CMDADD.UserPress();
  EXPECT_FALSE(lists_->changed()) << "cancelled";
  host_.inputs = {"One"};
  lists_->CMDADD.UserPress();
  lists_->CMDLOAD.UserPress();
  lists_->Command1.UserPress();
  lists_->UserClose();
  EXPECT_FALSE(lists_->is_closed());
  EXPECT_THAT(lists_->lstData.entries(), ElementsAre("One"));
  EXPECT_THAT(host_.messages,
              ElementsAre("This list box has change please save before loading the next list.",
                          "This list box has change please save before exiting.",
                          "This list box has change please save before exiting."));
  EXPECT_EQ(host_.titles.front(), "Tarvane Listed");
}

TEST_F(ListAdminTest, ClearingIsNoChangeAndDeletingNothingIsOne) {
  folder_.Write("Curtainlist.Dat", "a\r\nb\r\n");
  lists_->CMDLOAD.UserPress();
  lists_->CMDCLEAR.UserPress();
  EXPECT_THAT(lists_->lstData.entries(), IsEmpty());
  EXPECT_FALSE(lists_->changed());
  lists_->CMDDELETE.UserPress();
  EXPECT_TRUE(lists_->changed());
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(ListAdminTest, EachOptionHasItsFile) {
  for (std::size_t i = 0; i < kOptionLists.size(); ++i) {
    Choose(i);
    lists_->CMDLOAD.UserPress();
    EXPECT_EQ(lists_->txtLog.text(), (folder_.path() / kOptionLists[i].file).string());
    EXPECT_THAT(lists_->lstData.entries(), IsEmpty()) << "a missing file is an empty list";
  }
  EXPECT_THAT(host_.messages, ElementsAre("The Check List system only reads the first 12 items in the list"));
  EXPECT_THAT(host_.titles, ElementsAre("Tarvane List Admin"));
}

TEST_F(ListAdminTest, AFailedSaveIsSilentAndKeepsTheFile) {
  folder_.Write("Curtainlist.Dat", "a\n");  // line ends of another program
  EXPECT_THAT(LoadListFile(folder_.path() / "Curtainlist.Dat"), ElementsAre("a"));
  lists_->CMDNEW.UserPress();
  lists_->CMDSAVE.UserPress();  // to no file at all
  SaveListFile(*lists_, folder_.path() / "none" / "Curtainlist.Dat", {"b"});
  EXPECT_THAT(host_.messages, IsEmpty());
  EXPECT_EQ(folder_.Read("Curtainlist.Dat"), "a\n");
}

}  // namespace
}  // namespace tarvane
