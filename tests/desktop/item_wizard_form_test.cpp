#include <QCalendarWidget>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "blinds/item_wizard.h"
#include "desktop/shop_test.h"

namespace tarvane::desktop {
namespace {

using blinds::WizardNewBlinds;

class ItemWizardFormTest : public ShopTest {
 protected:
  // A new item of the first room; then the window is closed as the worker does it.
  void NewItem(const std::function<void(Form&, WizardNewBlinds&)>& look) {
    host_.OnShown([this, look](Form& form) {
      if (auto* wizard = dynamic_cast<WizardNewBlinds*>(&form.screen())) {
        ToFront(form.window());
        look(form, *wizard);
        if (!wizard->is_closed()) wizard->Close();
        return;
      }
      if (&form.screen() == &main_) main_.AddBlind();
      form.screen().Close();
    });
    main_.RunAsMain();
  }
};

TEST_F(ItemWizardFormTest, TheElementsAreTypedThroughByKeysAlone) {
  NewItem([](Form&, WizardNewBlinds& wizard) {
    Type("Cushion");
    EXPECT_EQ(wizard.HPtxtFields[2].text(), "Cushion") << "where the cursor stands at first";
    Key(Qt::Key_2, Qt::ControlModifier);
    Type("\tCover\t2\t7.5\nPad\t2\t3");
    blinds::ElementLines& lines = wizard.Elements;
    EXPECT_EQ(lines.txtItems[1].text(), "Pad");
    EXPECT_EQ(lines.TxtItemTotal[0].text(), "15.00");
    Key(Qt::Key_Up);
    EXPECT_EQ(lines.TxtGrandTotal.text(), "21.00");
    Type("8");
    EXPECT_EQ(lines.TxtSubTotalForItem[0].text(), "8") << "the whole text was selected";
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(lines.txtItems[0].text() + lines.TxtItemQty[0].text() + lines.TxtSubTotalForItem[0].text(), "");
    EXPECT_EQ(wizard.focus(), &lines.txtItems[0]);
    EXPECT_EQ(lines.TxtGrandTotal.text(), "6.00");
    for (int i = 0; i < 9; ++i) Key(Qt::Key_Down);
    EXPECT_EQ(wizard.focus(), &lines.txtItems[9]);
  });
}

TEST_F(ItemWizardFormTest, EveryWayOutAsksForWhatIsntSaved) {
  NewItem([this](Form& form, WizardNewBlinds& wizard) {
    Type("Cushion");
    host_.keeps = {TrialHost::Keep::kCancel, TrialHost::Keep::kCancel, TrialHost::Keep::kCancel,
                   TrialHost::Keep::kSave};
    Key(Qt::Key_Escape);
    WidgetOf<QPushButton>(form, wizard.Command1)->click();
    wizard.Command1.SetEnabled(false);
    form.window()->close();
    Settle();
    EXPECT_FALSE(wizard.is_closed());
    EXPECT_EQ(host_.unsaved, std::vector<std::string>(3, "the item \"Cushion\""));
    Key(Qt::Key_Escape);
    EXPECT_TRUE(wizard.is_closed() && wizard.item_saved());
  });
  EXPECT_EQ(main_.RoomItemGrid[0].RowCount(), 3);
}

TEST_F(ItemWizardFormTest, ADayOfTheCalendarReplacesADateAfterAQuestion) {
  NewItem([this](Form& form, WizardNewBlinds& wizard) {
    auto* month = WidgetOf<QCalendarWidget>(form, wizard.dtpDate);
    const auto choose = [&](QDate day) {
      auto* menu = qobject_cast<QMenu*>(month->parentWidget());
      ASSERT_NE(menu, nullptr);
      menu->popup({});
      emit month->clicked(day);
      emit month->activated(day);
      Settle();
      EXPECT_FALSE(menu->isVisible());
    };
    choose({2026, 2, 3});
    EXPECT_EQ(wizard.HPtxtFields[3].text(), "03-Feb-2026");
    EXPECT_TRUE(host_.messages.empty());
    host_.answers = {Answer::kNo};
    choose({2026, 2, 4});
    EXPECT_EQ(host_.messages.size(), 1U);
    EXPECT_EQ(wizard.HPtxtFields[3].text(), "03-Feb-2026");
    EXPECT_EQ(month->selectedDate(), QDate(2026, 2, 3));
  });
}

}  // namespace
}  // namespace tarvane::desktop
