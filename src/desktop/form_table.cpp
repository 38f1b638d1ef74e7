#include "desktop/form_table.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "app/show.h"
#include "desktop/forms/forms.h"
#include "printing/multi_page_preview.h"

namespace tarvane::desktop {
namespace {

using app::MainScreen;
using curtain_wizard::FrmPleats;
using curtain_wizard::FrmPopUp1;
using curtain_wizard::FrmPopUp1Options;
using curtain_wizard::FrmPreferences;
using curtain_wizard::FrmSimgleItem;
using curtain_wizard::MainCWizard;

constexpr bool kPlaced = true;
constexpr bool kCentred = false;

template <typename Shown>
void Show(MainScreen& main) {
  app::ShowScreen<Shown>(main);
}

// With the estimate in it.
void ShowTemplate(MainScreen& main) {
  printing::FrmEditTemp screen(main.host(), main.shop());
  screen.CboTemplates.UserPick(0);
  screen.CmdLoad.Press();
  main.ShowModal(screen);
}

// As the wizard opens it.
template <typename Shown>
void ShowOverWizard(MainScreen& main) {
  auto wizard = app::MakeScreen<MainCWizard>(main);
  if constexpr (std::is_constructible_v<Shown, Host&, Shop&, MainCWizard&>) {
    Shown shown(main.host(), main.shop(), wizard);
    main.ShowModal(shown);
  } else {
    Shown shown(main.host(), wizard);
    main.ShowModal(shown);
  }
}

// The first curtain of the first room.
void ShowItem(MainScreen& main) {
  main.RoomItemGrid[0].Select(1);
  main.EditItem();
}

void ShowNewItem(MainScreen& main) { main.AddBlind(); }

// A report of three pages, as it would come up.
void ShowSampleReport(MainScreen& main) {
  constexpr int kPages = 3;
  printing::clsMultiPgPreview report(main);
  report.SetSendToPrinter(false);
  report.pStartDoc();
  for (int page = 1; page <= kPages; ++page) {
    if (page > 1) report.pNewPage();
    report.pHeader("Curtains and blinds of the month", "Sample report");
    for (const char* text : {"Pencil pleat curtains, lined", "Roman blind", "Pelmet with piping"}) {
      report.pBullet(0.3);
      report.pPrint(text, -1, false);
      report.pDots(6);
      report.pRightTab(std::to_string(page) + " made");
    }
    report.pFooter("Sample");
  }
  report.pEndDoc();
}

// Over a letter of its own.
void ShowPreview(MainScreen& main) {
  const rich_text::Document letter = rich_text::FromPlainText(
      "Dear Mrs Abernethy,\n\nThank you for letting us measure your windows. The curtains of the first room "
      "are"
      " told below, those of the second on the next page.\n\nBay, three windows: ivory voile, lined.\n"
      "\fDoor: pinch pleats, moss stripe.\n\nYours sincerely,\nThe workroom");
  printing::PreviewRichText(main, letter, printing::kPreviewMargins, {});
}

void ShowLetter(MainScreen& main) {
  printing::ShowTextInPrintDB(main, main.shop(),
                              "Dear Mrs Blake,\n\nyour curtains are ready. They can be fitted on Tuesday the "
                              "14th of April, between nine and ten in the morning.\n\nYours sincerely,\n\n\n"
                              "Tarvane Curtains and Blinds\n");
}

bool Waits(const DataSource& source) { return source.rows().IsOpen() && source.rows().IsEditing(); }

// A job that isn't open can't have been typed into.
std::string Unsaved(MainScreen& main) {
  if (!main.in_job_mode() || !Waits(main.Data1)) return {};
  return "the job of " + (main.Name.empty() ? "a customer without a name" : main.Name.text());
}
void Save(MainScreen& main) { main.SaveRecord(); }

std::string Unsaved(printing::FrmEditTemp& screen) {
  return screen.changed() ? "the template " + std::string(screen.letter()) : "";
}
void Save(printing::FrmEditTemp& screen) {
  if (!screen.Save()) throw Fault("The template was not saved.");
}

std::string Unsaved(catalogues::Catalogue& catalogue) {
  const bool waits = Waits(catalogue.Data1) && !catalogue.Data1.rows().IsUntouched();
  return waits ? "the record of " + catalogue.RowName() : "";
}
void Save(catalogues::Catalogue& catalogue) { catalogue.Data1.Save(); }

std::string Unsaved(tools::frmOptions& options) {
  return Waits(options.Data1) ? "the preferences of the shop" : "";
}
void Save(tools::frmOptions& options) { options.cmdOK.Press(); }

std::string Unsaved(printing::FrmPrinting& printing) {
  return printing.HasUnsavedTexts() ? "the texts of the letters" : "";
}
void Save(printing::FrmPrinting& printing) { printing.SaveTexts(); }

std::string Unsaved(FrmPopUp1Options& entry) {
  if (!entry.changed()) return {};
  return "the price of " + (entry.Description.empty() ? "a style without a name" : entry.Description.text());
}
void Save(FrmPopUp1Options& entry) { entry.Save(); }
std::string Unsaved(blinds::WizardNewBlinds& wizard) {
  if (wizard.item_saved() || !wizard.has_changes()) return {};
  const std::string& description = wizard.HPtxtFields[blinds::WizardNewBlinds::kDescription].text();
  return description.empty() ? "the item" : "the item \"" + description + "\"";
}
void Save(blinds::WizardNewBlinds& wizard) {
  (wizard.CmdFinishTwo.visible() ? wizard.CmdFinishTwo : wizard.CmdUpdateAndClose).Press();
}

std::string Unsaved(printing::FrmPrintDB& letter) { return letter.Unsaved(); }
void Save(printing::FrmPrintDB& letter) {
  if (!letter.SaveText()) throw Fault("The text isn't saved.");
}

template <typename Shown>
constexpr bool kKeepsRows = requires(Shown& screen) {
  Unsaved(screen);
};

template <typename Shown>
std::string UnsavedIn(Screen& screen) {
  return Unsaved(dynamic_cast<Shown&>(screen));
}

template <typename Shown>
void SaveIn(Screen& screen) {
  Save(dynamic_cast<Shown&>(screen));
}

template <typename Shown, void (*build)(Form&, Shown&)>
constexpr FormEntry Row(std::string_view picture, bool remembers_place,
                        void (*show)(MainScreen&) = Show<Shown>) {
  FormEntry entry = {
      .name = Shown::kName,
      .shows = [](const Screen& screen) { return dynamic_cast<const Shown*>(&screen) != nullptr; },
      .picture = picture,
      .remembers_place = remembers_place,
      .build = [](Form& form) { build(form, dynamic_cast<Shown&>(form.screen())); },
      .show = show,
      .unsaved = nullptr,
      .closing_saves =
          std::is_base_of_v<catalogues::Catalogue, Shown> || std::is_same_v<printing::FrmPrinting, Shown>,
      .save = nullptr};
  if constexpr (kKeepsRows<Shown>) {
    entry.unsaved = UnsavedIn<Shown>;
    entry.save = SaveIn<Shown>;
  }
  return entry;
}

const std::array kForms = {
    Row<MainScreen, BuildMainForm>("main", kPlaced, nullptr),
    Row<app::frmSplash, BuildSplashForm>("splash", kCentred),
    Row<tools::frmOptions, BuildOptionsForm>("settings", kPlaced),
    Row<tools::FrmListAdmin, BuildListAdminForm>("option-lists", kPlaced),
    Row<tools::FrmEnterSalesPerson, BuildEnterSalesPersonForm>("sales-person", kCentred),
    Row<printing::FrmPrint, BuildQuickPrintForm>("quick-print", kPlaced),
    Row<printing::FrmEditTemp, BuildEditTemplateForm>("edit-templates", kPlaced, ShowTemplate),
    Row<catalogues::FrmFabricDatabase2, BuildProductsForm>("products", kPlaced),
    Row<catalogues::FrmItemsDatabase, BuildAccessoriesForm>("accessories", kPlaced),
    Row<catalogues::frmSuppliers2, BuildSuppliersForm>("suppliers", kPlaced),
    Row<catalogues::FrmPriceList, BuildPriceListForm>("price-list", kPlaced),
    Row<printing::FrmPrinting, BuildPrintingForm>("letters", kPlaced),
    Row<FrmPreferences, BuildPreferencesForm>("preferences", kCentred, ShowOverWizard<FrmPreferences>),
    Row<MainCWizard, BuildWizardForm>("wizard", kPlaced, ShowItem),
    Row<FrmPopUp1, BuildPricingForm>("pricing", kPlaced, ShowOverWizard<FrmPopUp1>),
    Row<FrmPopUp1Options, BuildPricingEntryForm>("pricing-entry", kCentred),
    Row<FrmPleats, BuildPleatsForm>("pleats", kCentred, ShowOverWizard<FrmPleats>),
    Row<FrmSimgleItem, BuildSingleItemForm>("single-item", kCentred),
    Row<blinds::WizardNewBlinds, BuildBlindWizardForm>("item-wizard", kPlaced, ShowNewItem),
    Row<blinds::FrmBlindsTemplates, BuildTemplatesForm>("templates", kPlaced),
    Row<printing::frmMultiPgPreview, BuildPageBrowserForm>("page-browser", kPlaced, ShowSampleReport),
    Row<printing::frmPreview, BuildPreviewForm>("preview", kPlaced, ShowPreview),
    Row<printing::FrmPrintDB, BuildPrintDbForm>("letter", kPlaced, ShowLetter),
};

}  // namespace

std::span<const FormEntry> Forms() { return kForms; }

const FormEntry* FindForm(const Screen& screen) {
  const auto found =
      std::ranges::find_if(kForms, [&](const FormEntry& entry) { return entry.shows(screen); });
  return found == kForms.end() ? nullptr : &*found;
}

}  // namespace tarvane::desktop
