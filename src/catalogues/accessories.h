#pragma once

#include <string>

#include "catalogues/catalogue.h"
#include "catalogues/hand_over.h"
#include "catalogues/quick_list.h"
#include "job/job_screen.h"

namespace tarvane::catalogues {

// Small goods and extras. Here alone the mark-up does something: it rules the selling price of every record
// that is looked at. An accessory goes into a room of the open job, or to the screen that this one was opened
// for. Any text fits into any field; what is no number counts as 0.
class FrmItemsDatabase : public Catalogue {
 public:
  static constexpr std::string_view kName = "FrmItemsDatabase";

  FrmItemsDatabase(Host& host, Shop& shop, job::JobScreen& job);

  TextField ItemID{this, "ItemID"};
  TextField SuppliersName{this, "SuppliersName"};
  TextField ItemName{this, "ItemName"};
  TextField ItemCode{this, "ItemCode"};
  TextField Discription{this, "Discription"};
  TextField BuyPrice{this, "BuyPrice"};
  TextField SellingPrice{this, "SellingPrice"};  // including tax
  TextField Remarks{this, "Remarks", "", -1, TextField::Kind::kMemo};

  TickBox Check3{this, "Check3", "Buy Price"};    // shows BuyPrice and TxtMarkUp
  TextField TxtMarkUp{this, "TxtMarkUp", "100"};  // percent, not stored
  TextField Text1{this, "Text1"};                 // the line of the invoice that is being filled
  Label JobNote{this, "JobNote"};                 // whose job "Use" puts an accessory into
  Label ItemsNote{this, "ItemsNote"};             // and what becomes of the items in its rooms; may be empty
  Button CmdUse{this, "CmdUse", "Use"};           // into a room of the job
  Button CmdUseItems{this, "CmdUseItems", "Use In Items"};
  Button Command3{this, "Command3", "Invoice Item"};
  QuickList Quick;

  // Before it is shown: opens it to hand an accessory over, with its price without tax, and to close then.
  void ForSingleItems(TakePicked take);
  void ForInvoice(TakePicked take);

  // The selling price becomes the buying price and the mark-up on it. It is stored as the record is left,
  // also where the record was merely looked at; where the database can only be read it is just shown. A price
  // that is too large for its column stays as it is.
  void MarkUp();

 protected:
  void Load() override;
  void Activate() override;
  void SetDefaults() override;

 private:
  void ShowBuyPrice(bool on);
  void ShowNotes();
  std::string PickedText() const;
  void CommitPicked();
  void PutIntoJob();
  void OpenToPick(Button& button, TakePicked take);

  job::JobScreen& job_;
};

}  // namespace tarvane::catalogues
