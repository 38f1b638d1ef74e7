#include "store/data_files.h"
#include "store/table_definition.h"

namespace tarvane {

namespace {

using enum ColumnType;

constexpr std::string_view kEmptyRoom = "Empty\r\n";
constexpr std::string_view kNoMoney = "0.00";
constexpr bool kSearched = true;

// Reports take 0, 1, 35, 36, 37, 61 and 63 by position: nothing may be put between these columns.
std::vector<ColumnDefinition> JobColumns() {
  return {
      {"RefNo", kKey, "", kSearched},
      {"Name", kText, "", kSearched},
      {"Telephone", kText, "", kSearched},
      {"Mobile", kText},
      {"Address", kText},
      {"Town", kText},
      {"County", kText},
      {"PostCode", kText, "", kSearched},
      {"CompletionDate", kText},
      // Summary and total of the rooms 1 to 12.
      {"Text10", kMemo, kEmptyRoom},
      {"Text11", kText, kNoMoney},
      {"Text12", kMemo, kEmptyRoom},
      {"Text13", kText, kNoMoney},
      {"Text14", kMemo, kEmptyRoom},
      {"Text15", kText, kNoMoney},
      {"Text16", kMemo, kEmptyRoom},
      {"Text17", kText, kNoMoney},
      {"Text18", kMemo, kEmptyRoom},
      {"Text19", kText, kNoMoney},
      {"Text20", kMemo, kEmptyRoom},
      {"Text21", kText, kNoMoney},
      {"Text22", kMemo, kEmptyRoom},
      {"Text23", kText, kNoMoney},
      {"Text24", kMemo, kEmptyRoom},
      {"Text25", kText, kNoMoney},
      {"Text26", kMemo, kEmptyRoom},
      {"Text27", kText, kNoMoney},
      {"Text28", kMemo, kEmptyRoom},
      {"Text29", kText, kNoMoney},
      {"Text30", kMemo, kEmptyRoom},
      {"Text31", kText, kNoMoney},
      {"Text32", kMemo, kEmptyRoom},
      {"Text33", kText, kNoMoney},
      {"1Text", kText},
      {"2Text", kText},
      {"3Text", kText},
      {"4text", kText, kNoMoney},
      {"5Text", kText, kNoMoney},
      {"G-Total", kText, kNoMoney},
      {"DepositPaid", kText, kNoMoney},
      {"Ext1", kText, "20"},
      {"Ext2", kText, "", kSearched},
      {"Ext3", kText},
      {"Ext4", kText, "0"},
      {"Ext6", kText, "", kSearched},
      {"History", kMemo},
      // Item lines: singles, then the rooms 1 to 12.
      {"Memo21", kMemo},
      {"1T(0)", kMemo},
      {"1T(1)", kMemo},
      {"1T(2)", kMemo},
      {"1T(3)", kMemo},
      {"1T(4)", kMemo},
      {"1T(5)", kMemo},
      {"1T(6)", kMemo},
      {"1T(7)", kMemo},
      {"1T(8)", kMemo},
      {"1T(9)", kMemo},
      {"1T(10)", kMemo},
      {"1T(11)", kMemo},
      {"4T(4)", kText},
      {"5T(0)", kText},
      {"5T(2)", kText},
      {"5T(3)", kMemo},
      {"5T(4)", kText, kNoMoney},
      {"Completed", kYesNo},
      // The lost job; not one of the twelve flags of the check list below.
      {"Check2", kYesNo},
      {"Check1", kYesNo},
      {"YesNo2", kYesNo},
      {"Check3", kYesNo},
      {"Check4", kYesNo},
      {"Check5", kYesNo},
      {"Check6", kYesNo},
      {"Check7", kYesNo},
      {"Check8", kYesNo},
      {"Check9", kYesNo},
      {"Check10", kYesNo},
      {"Check11", kYesNo},
      {"Check12", kYesNo},
  };
}

std::vector<ColumnDefinition> AdminColumns() {
  return {
      {"AdminID", kKey},
      {"LastOrderNo", kText},
      {"Ext1", kText},
      {"Ext2", kText},
      {"LastEstimateNo", kText},
      {"VatAmount", kText},
      {"LastInvoiceNo", kText},
      {"CurrencySymbol", kText},
      {"LastProFormaNo", kText},
      {"CompanyName", kText},
      {"CompanyAddress", kText},
      {"CompanyAddress1", kText},
      {"CompanyAddress2", kText},
      {"CompanyPostCode", kText},
      {"Telephone", kText},
      {"Fax", kText},
      {"WebSite", kText},
      {"email", kText},
      {"VatNumber", kText},
      {"Memo1", kMemo},
  };
}

std::vector<ColumnDefinition> CompanyColumns() {
  return {
      {"CompanyID", kKey},     {"Last Name", kText}, {"First Name", kText},   {"Title", kText},
      {"Company Name", kText}, {"Address", kText},   {"Town", kText},         {"County", kText},
      {"Post Code", kText},    {"Country", kText},   {"Telephone No", kText}, {"Fax No", kText},
      {"Vat Number", kText},
  };
}

std::vector<ColumnDefinition> LetterColumns() {
  return {
      {"LetterID", kKey},      {"TxtLetter(0)", kMemo}, {"TxtLetter(1)", kMemo}, {"TxtLetter(2)", kMemo},
      {"TxtLetter(3)", kMemo}, {"TxtLetter(4)", kMemo}, {"TxtLetter(5)", kMemo}, {"TxtLetter(6)", kMemo},
      {"TxtLetter(7)", kMemo}, {"TxtLetter(8)", kMemo},
  };
}

std::vector<ColumnDefinition> ProductColumns() {
  return {
      {"ProductID", kKey, "", kSearched},
      {"SuppliersName", kText, "", kSearched},
      {"SuppliersShortCode", kText},
      {"ProductName", kText, "", kSearched},
      {"ItemCode", kText, "", kSearched},
      {"Description", kText},
      {"Category", kText, "", kSearched},
      {"BarCode", kText, "", kSearched},
      {"BatchNo", kText},
      {"SellingPrice", kText},
      {"BuyPrice", kText},
      {"VatRate", kText},
      {"PriceWithOutVat", kText},
      {"AmountInStock", kText},
      {"StockLowLevelAmount", kText},
      {"StockOnOrder", kText},
      {"AmountOfStockToOrder", kText},
      {"Remarks", kMemo},
      {"image", kText},
      {"imagepath", kMemo},
      {"BookName", kText},
      {"Width", kText},
      {"PattrenRepeat", kText},
  };
}

std::vector<ColumnDefinition> AccessoryColumns() {
  return {
      {"ItemID", kKey, "", kSearched},        {"SuppliersName", kText, "", kSearched},
      {"ItemName", kText, "", kSearched},     {"ItemCode", kText, "", kSearched},
      {"Discription", kText, "", kSearched},  {"BuyPrice", kText, "", kSearched},
      {"SellingPrice", kText, "", kSearched}, {"Remarks", kMemo},
  };
}

std::vector<ColumnDefinition> SupplierColumns() {
  return {
      {"SuppliersID", kKey, "", kSearched},
      {"SuppliersName", kText, "", kSearched},
      {"Address", kMemo},
      {"Telephone", kText, "", kSearched},
      {"Fax", kText},
      {"ContactName", kText},
      {"Email", kText},
      {"Email2", kText},
      {"WebSite", kText},
      {"CurrentBalance", kText},
      {"CreditLimit", kText},
      {"NumberDueDays", kText},
      {"PurchaseDiscount", kText},
      {"PaymentDiscount", kText},
      {"AccountNumber", kText, "", kSearched},
      {"History", kMemo},
  };
}

std::vector<ColumnDefinition> TemplateColumns() {
  return {
      {"ItemID", kKey, "", kSearched},
      {"Description", kText, "", kSearched},
      {"Info1", kText, "", kSearched},
      {"Info2", kText},
      {"Info3", kText},
      {"Info4", kText},
      {"Info5", kText},
      {"Info6", kText},
      {"Info7", kText},
      {"Info8", kText},
      {"Info9", kText},
      {"Element1", kText},
      {"Element2", kText},
      {"Element3", kText},
      {"Element4", kText},
      {"Element5", kText},
      {"Element6", kText},
      {"Element7", kText},
      {"Element8", kText},
      {"Element9", kText},
      {"Element10", kText},
      {"Qty1", kText},
      {"Qty2", kText},
      {"Qty3", kText},
      {"Qty4", kText},
      {"Qty5", kText},
      {"Qty6", kText},
      {"Qty7", kText},
      {"Qty8", kText},
      {"Qty9", kText},
      {"Qty10", kText},
      {"SubTotal1", kText},
      {"SubTotal2", kText},
      {"SubTotal3", kText},
      {"SubTotal4", kText},
      {"SubTotal5", kText},
      {"SubTotal6", kText},
      {"SubTotal7", kText},
      {"SubTotal8", kText},
      {"SubTotal9", kText},
      {"SubTotal10", kText},
      {"SellingPrice", kText},
      {"BuyPrice", kText, "", kSearched},
      {"Remarks", kMemo},
  };
}

std::vector<ColumnDefinition> PricingColumns() {
  return {
      {"PopUpID", kNextKey, "", kSearched},
      {"Reference", kText, "", kSearched},
      {"Description", kText, "", kSearched},
      {"LabourPrice", kText, "", kSearched},
      {"LiningPrice", kText},
      {"LiningName", kText, "", kSearched},
      {"InterliningPrice", kText},
      {"InterLiningName", kText, "", kSearched},
      {"TapePrice", kText},
      {"Fullness", kText},
      {"HemsCms", kText},
      {"HemsIns", kText},
      {"AutoRoundUp", kText},
      {"Notes", kMemo},
  };
}

// Version 0 had indexes in an order of the program's own.
constexpr std::string_view kDropOwnOrder =
    "DROP INDEX IF EXISTS TblBrindel_Name;"
    "DROP INDEX IF EXISTS TblBrindel_Telephone;"
    "DROP INDEX IF EXISTS TblBrindel_PostCode;"
    "DROP INDEX IF EXISTS TblBrindel_Ext2;"
    "DROP INDEX IF EXISTS TblBrindel_Ext6;";

}  // namespace

const std::vector<UpgradeStep>& UpgradeSteps() {
  static const std::vector<UpgradeStep> steps = {
      {1, "TblBrindel", kDropOwnOrder},
  };
  return steps;
}

const std::vector<TableDefinition>& TableDefinitions() {
  static const std::vector<TableDefinition> tables = {
      {data_file::kJobs, "TblBrindel", JobColumns()},
      {data_file::kJobs, "Admin", AdminColumns()},
      {data_file::kJobs, "tblCompany", CompanyColumns()},
      {data_file::kJobs, "TblLetters", LetterColumns()},
      {data_file::kProducts, "Products", ProductColumns(), 2},
      {data_file::kAccessories, "Items", AccessoryColumns(), 2},
      {data_file::kSuppliers, "Suppliers", SupplierColumns(), 2},
      {data_file::kTemplates, "Templates", TemplateColumns(), 2},
      {data_file::kPricing, "PopUp1", PricingColumns(), 2},
  };
  return tables;
}

}  // namespace tarvane
