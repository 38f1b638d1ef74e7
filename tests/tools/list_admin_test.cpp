#include "tools/list_admin.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::tools {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kBeforeLoading[] = "This list box has change please save before loading the next list.";
constexpr char kBeforeExiting[] = "This list box has change please save before exiting.";
constexpr char kDrop[] = "The entries typed here are in no list yet. Drop them?";

class ListAdminTest : public testing::Test {
 protected:
  void Choose(std::size_t option) { lists_.Options[option].UserSet(true); }
  template <typename... Buttons>
  static void Press(Buttons&... buttons) {
    (buttons.UserPress(), ...);
  }
  void Add(const std::string& entry) {
    host_.inputs = {entry};
    Press(lists_.CMDADD);
  }
  void EditButtonsAre(bool on) {
    for (const Button* button : {&lists_.CMDADD, &admin_.CMDCLEAR, &lists_.CMDDELETE, &lists_.CMDSAVE}) {
      EXPECT_EQ(button->enabled(), on) << button->name();
    }
  }
  // The questions asked since the last look.
  std::size_t Asked() {
    for (const Question& question : host_.questions) {
      EXPECT_EQ(question.text, kDrop);
      EXPECT_EQ(question.preset, Answer::kNo);
    }
    return std::exchange(host_.questions, {}).size();
  }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  FrmListAdmin admin_{host_, shop_};
  ListEditor& lists_ = admin_.Lists;
  const std::vector<std::string>& entries_ = lists_.lstData.entries();
};

TEST_F(ListAdminTest, LoadsEditsAndSaves) {
  folder_.Write("tiebackslist.dat", "\xEF\xBB\xBFSmall\r\n Large \r\n");  // found whatever its case
  Choose(1);
  EditButtonsAre(false);
  Press(lists_.CMDLOAD);
  EXPECT_THAT(entries_, ElementsAre("Small", " Large "));
  EXPECT_EQ(lists_.txtLog.text(), (folder_.path() / "tiebackslist.dat").string());
  EditButtonsAre(true);
  EXPECT_FALSE(lists_.CMDLOAD.enabled());

  host_.inputs = {"Medium", ""};
  Press(lists_.CMDADD);
  lists_.lstData.UserOpen(-1);
  lists_.lstData.UserPick(0);
  Press(lists_.CMDDELETE, lists_.CMDSAVE);
  EXPECT_EQ(folder_.Read("tiebackslist.dat"), " Large \r\nMedium\r\n\r\n");
  EXPECT_THAT(host_.messages, ElementsAre("List has been saved"));
  EXPECT_THAT(host_.titles, ElementsAre("Tarvane Lists"));
  admin_.UserClose();
  EXPECT_TRUE(admin_.is_closed());
}

TEST_F(ListAdminTest, UnsavedChangesKeepListAndScreen) {
  folder_.Write("Curtainlist.Dat", "One\r\n");
  host_.inputs = {std::nullopt};
  Press(lists_.CMDLOAD, lists_.CMDADD);
  EXPECT_FALSE(lists_.changed()) << "cancelled";
  Add("Two");
  Choose(1);
  Press(lists_.CMDLOAD, admin_.Command1);
  admin_.UserClose();
  EXPECT_FALSE(admin_.is_closed());
  EXPECT_THAT(entries_, ElementsAre("One", "Two"));
  EXPECT_THAT(host_.messages, ElementsAre(kBeforeLoading, kBeforeExiting, kBeforeExiting));
  EXPECT_EQ(host_.titles.front(), "Tarvane Listed");
  EXPECT_EQ(Asked(), 0U) << "saving keeps them";
}

// Nothing was loaded, so that there is no file to save to.
TEST_F(ListAdminTest, EntriesOfNoListAreAskedFor) {
  Press(admin_.CMDNEW);
  Add("One");
  host_.answers = {Answer::kNo, Answer::kNo, Answer::kNo};
  Press(lists_.CMDLOAD);
  admin_.UserClose();
  Press(admin_.CMDNEW);
  EXPECT_THAT(host_.messages, ElementsAre(kBeforeLoading, kBeforeExiting));
  EXPECT_THAT(entries_, ElementsAre("One"));
  EXPECT_EQ(Asked(), 3U);

  Press(lists_.CMDSAVE);
  EXPECT_FALSE(lists_.changed()) << "it is taken for saved, though it isn't";
  host_.answers = {Answer::kNo, Answer::kYes};
  admin_.UserClose();
  EXPECT_FALSE(admin_.is_closed());
  EXPECT_EQ(host_.messages.size(), 2U) << "without a message now";
  Press(lists_.CMDLOAD);
  EXPECT_THAT(entries_, IsEmpty()) << "dropped, another list loaded";
  EXPECT_EQ(Asked(), 2U);
  admin_.UserClose();
  EXPECT_TRUE(admin_.is_closed());
}

TEST_F(ListAdminTest, EntriesThatCouldNotBeWrittenAreAskedFor) {
  Press(lists_.CMDLOAD);
  Add("One");
  std::filesystem::create_directories(folder_.path() / "Curtainlist.Dat");  // can't be replaced
  Press(lists_.CMDSAVE);
  EXPECT_THAT(host_.messages, IsEmpty()) << "a failure isn't told";
  host_.answers = {Answer::kNo, Answer::kYes};
  Press(admin_.Command1);
  EXPECT_FALSE(admin_.is_closed());
  Press(admin_.Command1);
  EXPECT_TRUE(admin_.is_closed());
}

TEST_F(ListAdminTest, ClearingIsNoChangeAndDeletingNothingIsOne) {
  folder_.Write("Curtainlist.Dat", "a\r\nb\r\n");
  Press(lists_.CMDLOAD, admin_.CMDCLEAR);
  EXPECT_THAT(entries_, IsEmpty());
  EXPECT_FALSE(lists_.changed());
  Press(lists_.CMDDELETE);
  EXPECT_TRUE(lists_.changed());
  EXPECT_THAT(host_.messages, IsEmpty());
  EXPECT_EQ(folder_.Read("Curtainlist.Dat"), "a\r\nb\r\n");
}

TEST_F(ListAdminTest, EachOptionHasItsFile) {
  for (std::size_t i = 0; i < kOptionLists.size(); ++i) {
    Choose(i);
    EXPECT_EQ(host_.messages.empty(), i < 4) << "told with the check list";
    Press(lists_.CMDLOAD);
    EXPECT_EQ(lists_.txtLog.text(), (folder_.path() / kOptionLists[i].file).string());
    EXPECT_THAT(entries_, IsEmpty()) << "a missing file is an empty list";
  }
  EXPECT_THAT(host_.messages, ElementsAre("The Check List system only reads the first 12 items in the list"));
  EXPECT_THAT(host_.titles, ElementsAre("Tarvane List Admin"));
}

}  // namespace
}  // namespace tarvane::tools
