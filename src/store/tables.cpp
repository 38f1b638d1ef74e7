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
  };
  return tables;
}

}  // namespace tarvane
