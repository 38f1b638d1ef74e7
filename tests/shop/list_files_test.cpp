#include <gmock/gmock.h>

#include "shop/option_lists.h"
#include "shop/shop.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListFilesTest : public testing::Test {
 protected:
  std::filesystem::path File(std::string_view name) const { return folder_.path() / name; }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  Screen screen_{host_, "FrmListAdmin"};
};

TEST_F(ListFilesTest, AreReadWithoutAByteOrderMark) {
  folder_.Write("Curtainlist.Dat", "\xEF\xBB\xBF Cafe \r\nTab Top\n");
  EXPECT_THAT(LoadListFile(File("Curtainlist.Dat")), ElementsAre(" Cafe ", "Tab Top"));
  EXPECT_THAT(shop_.ReadList("curtainlist.dat"), ElementsAre(" Cafe ", "Tab Top"));
  EXPECT_EQ(shop_.ReadText("Curtainlist.Dat"), " Cafe \r\nTab Top\n");
}

TEST_F(ListFilesTest, MissingOnesAreEmptyAndUnreadableOnesAreFaults) {
  EXPECT_THAT(LoadListFile(File("Curtainlist.Dat")), IsEmpty());
  EXPECT_THAT(shop_.ReadList("Curtainlist.Dat"), IsEmpty());
  EXPECT_EQ(shop_.ReadText("Curtainlist.Dat"), std::nullopt);
  std::filesystem::create_directory(File("Curtainlist.Dat"));
  EXPECT_THROW(LoadListFile(File("Curtainlist.Dat")), Fault);
  EXPECT_THROW(shop_.ReadList("Curtainlist.Dat"), Fault);
  EXPECT_THROW(shop_.ReadText("Curtainlist.Dat"), Fault);
}

TEST_F(ListFilesTest, AreSavedWithAMessageOrNotAtAllWithoutOne) {
  SaveListFile(screen_, File("Curtainlist.Dat"), {"a", "", " b"});
  EXPECT_EQ(folder_.Read("Curtainlist.Dat"), "a\r\n\r\n b\r\n");
  EXPECT_THAT(host_.messages, ElementsAre("List has been saved"));
  EXPECT_THAT(host_.titles, ElementsAre("Tarvane Lists"));
  std::filesystem::create_directory(File("Trimmingslist.Dat"));
  SaveListFile(screen_, File("Trimmingslist.Dat"), {"a"});
  SaveListFile(screen_, File("none/Curtainlist.Dat"), {"a"});
  EXPECT_EQ(host_.messages.size(), 1U);
  EXPECT_TRUE(std::filesystem::is_empty(File("Trimmingslist.Dat")));
}

}  // namespace
}  // namespace tarvane
