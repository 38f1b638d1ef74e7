#include <QLabel>
#include <QWidget>

#include "catalogues/room_entry.h"
#include "desktop/forms/catalogue_form.h"
#include "desktop/forms/element_table.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using blinds::FrmBlindsTemplates;

const TableLook kColumns = {.columns = {{"ItemID", "ID", 6, true},
                                        {"Description", "Description", 24},
                                        {"SellingPrice", "Selling Price", 13, true},
                                        {"Info1", "Info 1", 24}},
                            .wide = "Description",
                            .name = "Templates",
                            .empty = "None found, or none yet. Add New begins one."};

Piece Record(Builder& build, FrmBlindsTemplates& screen) {
  const Look money{.width = 10, .number = true};
  std::vector<FieldLine> lines = {{"Record ID", {{screen.ItemID, {.width = 8, .number = true}}}},
                                  {"Description", {{screen.Info[0], {}}}}};
  for (std::size_t i = 1; i < FrmBlindsTemplates::kInfoLines; ++i) {
    lines.push_back({(i < 9 ? "Info " : "info ") + std::to_string(i), {{screen.Info[i], {}}}});
  }
  return build.Column({
      build.Fields(lines),
      ElementTable(build, screen.Elements, "Element Description", "Grand total for this Template:"),
      build.Fields({{"Selling Price Inc Vat/Tax", {{screen.FabselPrice, money}, {screen.Check3}}}}),
      build.Group(screen.BuyPrices, {build.Fields({{"Buy Price", {{screen.FabBuyPrice, money}}},
                                                   {"Mark Up %", {{screen.TxtMarkUp, money}}}})}),
      build.Fields({{"Remarks", {{screen.FabRemarks, {.lines = 3}}}}}),
  });
}

// The quick list; and where a template can go into a room, whose that is, and what it costs.
Piece BelowList(Builder& build, FrmBlindsTemplates& screen) {
  Pieces pieces = QuickListPieces(build, screen.Quick);
  if (screen.CmdUse.shown()) {
    for (const auto& [tell, role] : {std::pair(&catalogues::WhoseRooms, QPalette::PlaceholderText),
                                     std::pair(&catalogues::WhatItemsLose, QPalette::LinkVisited)}) {
      pieces.push_back(FollowingText(build, [&screen, tell = tell] { return tell(screen.job()); }));
      auto* text = qobject_cast<QLabel*>(pieces.back().widget);
      text->setWordWrap(true);
      text->setForegroundRole(role);
    }
  }
  return build.Column(pieces, 1);
}

}  // namespace

void BuildTemplatesForm(Form& form, FrmBlindsTemplates& screen) {
  FillCatalogue(form, screen,
                {.list = kColumns,
                 .record = [&screen](Builder& build) { return Record(build, screen); },
                 .use = {&screen.Command3, &screen.CmdUse, &screen.CmdUseItems},
                 .below_list = [&screen](Builder& build) { return BelowList(build, screen); },
                 .usual_category = kColumns.wide});
}

}  // namespace tarvane::desktop
