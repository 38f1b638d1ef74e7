#include "catalogues/catalogue.h"

#include <algorithm>

#include "listing/reclist_engine.h"
#include "screen/kinds.h"
#include "store/table_definition.h"
#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

constexpr RecordBar::Look CaptionLook(std::string_view record) {
  return {.name = "RecordCaption", .before = record, .between = "/"};
}

// Columns beyond this many characters are cut off where they are typed; memos have no end.
int LimitOf(const ColumnDefinition& column) {
  constexpr int kMostCharacters = 255;
  return column.type == ColumnType::kMemo ? 0 : kMostCharacters;
}

}  // namespace

Catalogue::Catalogue(Host& host, Shop& shop, const CatalogueLook& look)
    : Screen(host, std::string(look.name)),
      Search(this, Data1, look.table, look.categories, look.finder),
      Records(this, Data1, CaptionLook(look.record)),
      CmdFabAdd(this, "CmdFabAdd", look.add),
      Update(this, "Update", look.save),
      shop_(shop),
      look_(look) {
  SetTitle(look.title);
  Data1.Attach(MSFlexGrid1);
  SetRules();
}

void Catalogue::BindColumns() {
  for (const ColumnDefinition& column : FindTable(look_.table).columns) {
    if (Data1.IsBound(column.name)) continue;
    Control* const control = Find(column.name);
    auto* const field = control != nullptr ? As<TextField>(*control) : nullptr;
    auto* const box = control != nullptr ? As<TickBox>(*control) : nullptr;
    if (field != nullptr) {
      Data1.Bind(*field, std::string(column.name), LimitOf(column));
    } else if (box != nullptr) {
      Data1.Bind(*box, std::string(column.name));
    } else {
      throw Fault(name() + " has no field for the column " + std::string(column.name) + ".");
    }
    const bool key = column.type == ColumnType::kKey || column.type == ColumnType::kNextKey;
    if (key && field != nullptr) field->SetReadOnly(true);
  }
}

void Catalogue::SetRules() {
  Search.ReadFrom([this]() -> Database& { return shop_.database(look_.file); });
  Search.OnFound([this](std::int64_t count) { TellFound(count); });
  Search.OnReset([this] {
    Messages.SetCaption("");
    SetFocus(Search.FabSText);
  });
  Data1.OnReposition([this] {
    for (Button* button : {&Update, &CmdDelete}) button->SetEnabled(Data1.HasRow());
  });
  CmdFabAdd.OnClicked([this] { Add(); });
  Update.OnClicked([this] { Save(); });
  CmdDelete.OnClicked([this] { Delete(); });
  CmdExcel.OnClicked([this] { listing::RECLIST_ENGINE(shop_).CopyFlexDataToExcel(*this, MSFlexGrid1); });
  CmdCancel.OnClicked([this] { UserClose(); });
  MSFlexGrid1.OnRowOpened([this] {
    if (use_ != nullptr) {
      use_->Press();
    } else if (first_field_ != nullptr) {
      SetFocus(*first_field_);
    }
  });
}

void Catalogue::Load() {
  Data1.Open(shop_.database(look_.file), look_.table);
  TellNotices();
  SetFocus(Search.FabSText);
}

void Catalogue::TellNotices() {
  for (const std::string& notice : shop_.TakeNotices()) Message(notice, kProgramTitle, Icon::kWarning);
}

void Catalogue::TellFound(std::int64_t count) {
  const std::string found = std::to_string(count) + " matches found.";
  Messages.SetCaption(found);
  Message(found);
  // What was found is looked through, and taken with Enter.
  if (count > 0) SetFocus(MSFlexGrid1);
}

void Catalogue::OpenFor(Button& use) {
  use_ = &use;
  use.SetVisible(true);
  // A search leaves the worker in the category: Enter goes on with what was found.
  Search.CboFabSearch.OnEnterKey([this] {
    if (Search.CboFabSearch.text() == Finder::kPrompt) use_->Press();
  });
  Data1.OnReposition([this] { use_->SetEnabled(Data1.HasRow()); });
}

bool Catalogue::LeaveForUse() {
  if (!Data1.HasRow()) return false;
  const bool adding = Data1.rows().IsAdding();
  const std::int64_t count = Data1.rows().RecordCount();
  Data1.Leave();
  return Data1.HasRow() && (!adding || Data1.rows().RecordCount() > count);
}

void Catalogue::Add() {
  RowSet& rows = Data1.rows();
  Data1.Leave();
  rows.AddNew();
  SetDefaults();
  if (look_.adds_at_once) {
    Data1.Save();
  } else {
    rows.SetUntouched();
  }
  const std::int64_t place = rows.IsAdding() ? rows.RecordCount() : rows.AbsolutePosition();
  Records.Caption.SetCaption("Record: " + std::to_string(place + 1));
  Messages.SetCaption("");
  if (first_field_ == nullptr) return;
  first_field_->SetSelectAllOnFocus();
  SetFocus(*first_field_);
}

void Catalogue::Save() {
  if (!Data1.HasRow()) return;
  BeforeSave();
  Data1.Save();
  Messages.SetCaption("Saved.");
}

std::string Catalogue::RowName() const {
  const RowSet& rows = Data1.rows();
  if (!Data1.HasRow()) return "";
  const std::string name(TrimSpaces(rows.Value(look_.named_by)));
  return name.empty() ? rows.Value(0) : name;
}

void Catalogue::Delete() {
  if (!Data1.HasRow()) return;
  const std::string text =
      "Once deleted data cannot be recovered.\nDelete item " + RowName() + ".  Are You Sure? ";
  if (!AskYesNo("Delete Item...", text, Answer::kNo, Icon::kWarning)) return;
  Data1.rows().Delete();
  Messages.SetCaption("Deleted.");
}

void Catalogue::GoToKey(std::string_view key) {
  Data1.Leave();
  IgnoreFaults([&] { Data1.rows().SetBookmark(key); });
}

bool Catalogue::MayClose() {
  try {
    Data1.Leave();
    return true;
  } catch (const Fault& fault) {
    // What waits goes with the row set.
    return AskYesNo(title(), std::string(fault.what()) + "\nClose without saving it?", Answer::kNo,
                    Icon::kWarning);
  }
}

}  // namespace tarvane::catalogues
