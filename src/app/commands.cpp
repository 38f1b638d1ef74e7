#include "app/commands.h"

#include "app/addresses.h"
#include "app/main_screen.h"
#include "app/show.h"
#include "app/splash.h"
#include "blinds/templates.h"
#include "catalogues/accessories.h"
#include "catalogues/products.h"
#include "catalogues/suppliers.h"
#include "curtain_wizard/pricing.h"
#include "printing/edit_template.h"
#include "printing/printing_options.h"
#include "printing/quick_print.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane::app {

namespace {

constexpr auto kMenu = Button::Kind::kMenu;
constexpr auto kEntry = Button::Kind::kMenuEntry;
constexpr auto kTool = Button::Kind::kToolButton;
constexpr auto kButton = Button::Kind::kButton;
constexpr Action kNoAction = Action::Run{nullptr};

void DoNothing(MainScreen&) {}

template <void (MainScreen::*operation)()>
void Run(MainScreen& main) {
  (main.*operation)();
}

template <const std::string_view& address>
void Browse(MainScreen& main) {
  main.host().Launch(address);
}

void ClearData(MainScreen& main) { main.ClearCurtainData(); }
void SetUpPrinter(MainScreen& main) { main.host().SetUpPrinter(); }

template <typename Shown>
void Show(MainScreen& main) {
  ShowScreen<Shown>(main);
}

// The letter printer reads which letter from TxtTrack.
template <char track>
void QuickPrint(MainScreen& main) {
  main.TxtTrack.SetText(std::string(1, track));
  ShowScreen<printing::FrmPrint>(main);
}

void EditTemplates(MainScreen& main) {
  main.Message(printing::FrmEditTemp::NoticeText(main.shop()), printing::FrmEditTemp::kNotice);
  ShowScreen<printing::FrmEditTemp>(main);
}

using Main = MainScreen;

}  // namespace

// clang-format off
const std::vector<Command>& Commands() {
  static const std::vector<Command> kCommands = {
      {kMenu,  "",        "munFile",            -1, "&File", "", kNoAction},
      {kEntry, "munFile", "munNew2",            -1, "Add &New", "", Run<&Main::AddNewJob>},
      {kEntry, "munFile", "munPrint",           -1, "&Build and Print work sheets", "", Show<printing::FrmPrinting>},
      {kMenu,  "munFile", "MunQP",              -1, "&Quick Print Options", "", kNoAction},
      {kEntry, "MunQP",   "MunQPE",             -1, "Quick Print Estimate", "", QuickPrint<'2'>},
      {kEntry, "MunQP",   "QuickPS",            -1, "Quick Print Statement", "", QuickPrint<'3'>},
      {kEntry, "munFile", "MunPrinterSetup",    -1, "Printer &Setup", "", SetUpPrinter},
      {kEntry, "munFile", "munexit",            -1, "E&xit", "", Run<&Main::Exit>},

      {kMenu,  "",        "munFind",            -1, "&Find", "", kNoAction},
      {kEntry, "munFind", "MunRefNumber",       -1, "Ref: Number", "", kNotBuilt},
      {kEntry, "munFind", "MunOrderNo",         -1, "Order Ref Number", "", kNotBuilt},
      {kEntry, "munFind", "MunName",            -1, "Name", "", kNotBuilt},
      {kEntry, "munFind", "MunTelephone",       -1, "Telephone", "", kNotBuilt},
      {kEntry, "munFind", "MunPostCode",        -1, "Post Code", "", kNotBuilt},
      {kEntry, "munFind", "munSearch",          -1, "Advanced Search", "", kNotBuilt},

      {kMenu,  "",        "MunData",            -1, "&Data", "", kNoAction},
      {kEntry, "MunData", "MuuNextRec",         -1, "&Next Record", "", Run<&Main::NextRecord>},
      {kEntry, "MunData", "MnuPrevRec",         -1, "&Previous Record", "", Run<&Main::PreviousRecord>},
      {kEntry, "MunData", "munPay",             -1, "Making Payment", "", kNotBuilt},
      {kEntry, "MunData", "MunCustomersDetails", -1, "&Customers Records", "", kNotBuilt},
      {kEntry, "MunData", "MunFabricDatabase",  -1, "Products Database", "", Show<catalogues::FrmFabricDatabase2>},
      {kEntry, "MunData", "MunSuppliersData",   -1, "Suppliers Database", "", Show<catalogues::frmSuppliers2>},
      {kEntry, "MunData", "munTem",             -1, "Wizard Templates Database", "", Show<blinds::FrmBlindsTemplates>},
      {kEntry, "MunData", "MunFrmPopUp1",       -1, "Pricing Database for Curtain Wizard", "", Show<curtain_wizard::FrmPopUp1>},
      {kEntry, "MunData", "MunAccressDatabase", -1, "Accressories Database", "", Show<catalogues::FrmItemsDatabase>},
      {kEntry, "MunData", "munInvoicing",       -1, "&Invoicing", "", kNotBuilt},
      {kEntry, "MunData", "MunCashBook",        -1, "&Cash Book", "", kNotBuilt},
      {kEntry, "MunData", "munCCD",             -1, "Clear Curtain Da&ta", "", ClearData},
      {kEntry, "MunData", "OptionsList",        -1, "Change Options &Lists", "", Show<tools::FrmListAdmin>},
      {kEntry, "MunData", "MunNotes",           -1, "&Notes and History", "", DoNothing},
      {kEntry, "MunData", "MunAddInfo",         -1, "&Additional Information", "", DoNothing},
      {kEntry, "MunData", "munQuickClear",      -1, "&Quick Clear Orders", "", kNotBuilt},
      {kMenu,  "MunData", "Mun",                -1, "&Edit Tarvane Preferences", "", kNoAction},
      {kEntry, "Mun",     "MunCompanyandVat",   -1, "&Edit Company-Vat details etc", "", Show<tools::frmOptions>},

      {kMenu,  "",        "MnuPicView",         -1, "&Picture View", "", kNoAction},
      {kEntry, "MnuPicView", "MunOpenPicView",  -1, "&Open Picture View", "", kNotBuilt},

      {kMenu,  "",        "Muntools",           -1, "&Tools", "", kNoAction},
      {kEntry, "Muntools", "MunConvert",        -1, "&Impererial to Metric", "", kNotBuilt},

      {kMenu,  "",        "MunReports",         -1, "&Reports", "", kNoAction},
      {kEntry, "MunReports", "MunReportOne",    -1, "Tarvane &Reports ", "", kNotBuilt},
      {kEntry, "MunReports", "MunEditTemples",  -1, "&Edit Templates", "", EditTemplates},

      {kMenu,  "",        "MunWindows",         -1, "&Windows", "", kNoAction},
      {kEntry, "MunWindows", "MunCascade",      -1, "&Cascade", "", DoNothing},

      {kMenu,  "",        "munHelp",            -1, "&Help", "", kNoAction},
      {kEntry, "munHelp", "MunManual",          -1, "Tarvane Help", "", kNotBuilt},
      {kEntry, "munHelp", "munwwwbrindel",      -1, kMakerSite, "", Browse<kMakerSite>},
      {kEntry, "munHelp", "munWwwbrindelCoUk",  -1, kMakerSecondSite, "", Browse<kMakerSecondSite>},
      {kEntry, "munHelp", "MunUpgrades",        -1, "Check for Software &Updates", "", Run<&Main::ShowUpdates>},
      {kEntry, "munHelp", "MunAbout",           -1, "&About", "", Show<frmSplash>},

      {kTool,  "", "New Record",      -1, "", "Add New Record", Run<&Main::NewRecord>},
      {kTool,  "", "Save Records",    -1, "", "Save Records", Run<&Main::SaveRecord>},
      {kTool,  "", "Print",           -1, "", "Print Work Sheets", Show<printing::FrmPrinting>},
      {kTool,  "", "Search",          -1, "", "Advanced Search ", kNotBuilt},
      {kTool,  "", "Order",           -1, "", "Make Order", DoNothing},
      {kTool,  "", "Clear",           -1, "", "Clear All Data", ClearData},
      {kTool,  "", "History",         -1, "", "History of Payments", kNotBuilt},
      {kTool,  "", "Payment",         -1, "", "Payment", kNotBuilt},
      {kTool,  "", "Quick Clear",     -1, "", "Quick Clear", kNotBuilt},
      {kTool,  "", "Estimate",        -1, "", "Curtain Wizard", Run<&Main::ShowQuickWizard>},
      {kTool,  "", "Cdatabase",       -1, "", "Customers Database", kNotBuilt},
      {kTool,  "", "products",        -1, "", "Products Database", Show<catalogues::FrmFabricDatabase2>},
      {kTool,  "", "Sdatabase",       -1, "", "Suppliers Database", Show<catalogues::frmSuppliers2>},
      {kTool,  "", "PricingDatabase", -1, "", "Pricing Database", Show<curtain_wizard::FrmPopUp1>},

      {kButton, "", "CmdSize",              -1, "&Close Record", "", Run<&Main::CloseRecord>},
      {kButton, "", "MakePayment",          -1, "Make a Payment", "", kNotBuilt},
      {kButton, "", "Command3",             -1, "&Payment F2", "", kNotBuilt},
      {kButton, "", "Command6",             -1, "Quick Print Estimate", "", QuickPrint<'2'>},
      {kButton, "", "CmdPrintStatement",    -1, "Quick Print Statement", "", QuickPrint<'3'>},
      {kButton, "", "CmdPrint",             -1, "Print This Record", "", Show<printing::FrmPrinting>},
      {kButton, "", "Command11",            -1, "QUICK SHOP SALES (POS)", "", kNotBuilt},
      {kButton, "", "Command10",            -1, "Pricing Database", "", Show<curtain_wizard::FrmPopUp1>},
      {kButton, "", "CmdCustomersDatabase", -1, "&Customer Database F3", "", kNotBuilt},
      {kButton, "", "Command4",             -1, "&Your Product Database F4", "", Show<catalogues::FrmFabricDatabase2>},
      {kButton, "", "CmdSuppliers",         -1, "Your &Suppliers Database", "", Show<catalogues::frmSuppliers2>},
      {kButton, "", "Command2",             -1, "&Quick Curtain Wizard", "", Run<&Main::ShowQuickWizard>},
      {kButton, "", "CmdGetDetails",        -1, "&Get Customer Details", "", kNotBuilt},
      {kButton, "", "SendEmail",            -1, "Email", "", Run<&Main::SendMail>},
      {kButton, "", "GoWebSite",            -1, R"(http:\\)", "", Run<&Main::VisitWebSite>},
      {kButton, "", "UpdateCheckList",      -1, "Change Check List", "", kNotBuilt},
      {kButton, "", "Command7",             -1, "...", "Completion date", kNotBuilt},
      {kButton, "", "CmdFittingDate",       -1, "...", "Fitting date", kNotBuilt},
      {kButton, "", "Command9",             -1, "...", "Date created", kNotBuilt},
      {kButton, "", "Command1",              0, "Add Curtain Wizard", "", Run<&Main::AddCurtain>},
      {kButton, "", "Command1",              1, "Add Items Wizard Using Templates Database", "", Run<&Main::AddBlind>},
      {kButton, "", "Command1",              2, "Edit Item", "", Run<&Main::EditItem>},
      {kButton, "", "Command1",              3, "Add Item Wizard", "", Run<&Main::RefreshAfterItem>},
  };
  return kCommands;
}
// clang-format on

}  // namespace tarvane::app
