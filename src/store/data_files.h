#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

// The files beside the program. Names are looked up without regard to case: "Curtainlist.Dat" finds
// "curtainlist.dat" where only that is there; a file that isn't there gets the name as written here.
namespace data_file {
inline constexpr std::string_view kJobs = "Dat/Tarvane.mdb";
inline constexpr std::string_view kProducts = "Dat/Products.mdb";
inline constexpr std::string_view kAccessories = "Dat/Items.mdb";
inline constexpr std::string_view kSuppliers = "Dat/Suppliers2.mdb";
inline constexpr std::string_view kTemplates = "Dat/Templates.mdb";
inline constexpr std::string_view kPricing = "Dat/Popup1.mdb";
inline constexpr std::string_view kSettings = "Dat/Tarvane.ini";
inline constexpr std::string_view kCheckListCaptions = "checklist.ini";
inline constexpr std::string_view kWizardOptions = "Options.dat";
inline constexpr std::string_view kCurtainList = "Curtainlist.Dat";
inline constexpr std::string_view kTieBacksList = "TieBackslist.Dat";
inline constexpr std::string_view kTieBacksStyleList = "TieBacksStylelist.Dat";
inline constexpr std::string_view kTrimmingsList = "Trimmingslist.Dat";
inline constexpr std::string_view kCheckList = "Checklist.Dat";
inline constexpr std::string_view kSalesPersonsList = "SalesPersonslist.Dat";
inline constexpr std::string_view kEstimateLetter = "DefaultEstimate.rtf";
inline constexpr std::string_view kStatementLetter = "DefaultStatement.rtf";
inline constexpr std::string_view kReminderLetter = "Defaultreminders.rtf";
inline constexpr std::string_view kReceiptLetter = "DefaultReceipt.rtf";
inline constexpr std::string_view kBarcodeSymbols = "char.txt";
inline constexpr std::string_view kBarcodePatterns = "binary.txt";
}  // namespace data_file

// `name` (with forward slashes) below `folder`, each step matched without regard to case.
std::filesystem::path FindFile(const std::filesystem::path& folder, std::string_view name);

// The whole file; nothing where it is missing. Faults, with the file and the cause, where it is there and
// can't be read.
std::optional<std::string> ReadFile(const std::filesystem::path& file);
// Written beside, flushed to the disk, renamed over: the old content or the new one stands, never a part. A
// file that was there keeps its rights, a new one is for owner and group; where `file` is a link, the file
// that it leads to is replaced. Faults with the file and the cause, also where what is there can't be read.
void ReplaceFile(const std::filesystem::path& file, std::string_view content);

// Lines of `text`, ended by CR LF or LF alone; a last line without an end counts, an empty one doesn't.
std::vector<std::string> SplitLines(std::string_view text);
// Each line ended by CR LF.
std::string JoinLines(const std::vector<std::string>& lines);

// A value list read in one pass, separated by commas or line ends, quoted text allowed: value by value as
// they stand, at most `most`. Missing ones are not filled in.
std::vector<std::string> ReadSequentialValues(std::string_view text, std::size_t most);

// Keyed settings files ("[section]", "key=value"). Names without regard to case; values at most 254
// characters, outer blanks dropped, one pair of quotes around a value removed.
std::string ReadProfileValue(std::string_view text, std::string_view section, std::string_view key);
// `text` with the value set; everything else, comments too, stays as it stands. Line breaks in the value
// become blanks.
std::string WithProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value);

}  // namespace tarvane
