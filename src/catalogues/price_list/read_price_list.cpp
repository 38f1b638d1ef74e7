#include "catalogues/price_list/read_price_list.h"

#include <string>
#include <system_error>

#include "catalogues/price_list/csv_reader.h"
#include "catalogues/price_list/file_text.h"
#include "store/data_files.h"
#include "text/fault.h"

namespace tarvane::catalogues {

namespace {

struct UnreadKind {
  std::string_view begin;
  std::string_view cause;
};
constexpr UnreadKind kUnreadKinds[] = {
    {"\xD0\xCF\x11\xE0",
     "it is a spreadsheet of an old kind or a protected one; save it as XLSX, ODS or CSV"},
    {"%PDF", "it is a PDF document; ask for it as XLSX, ODS or CSV"},
};

// What can be told before a byte is read: the file itself, and that it isn't endless.
void CheckFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (error || !std::filesystem::exists(status)) throw Fault("the file is missing");
  if (!std::filesystem::is_regular_file(status)) throw Fault("it is not a file");
  const auto size = std::filesystem::file_size(file, error);
  if (!error && size > price_limit::kFileBytes) {
    throw Fault("it is larger than " + std::to_string(price_limit::kFileBytes >> 20U) + " MB");
  }
}

}  // namespace

std::optional<PriceSheet> ReadPriceSheet(std::string_view bytes, const KeepGoing& keep_going) {
  for (const UnreadKind& kind : kUnreadKinds) {
    if (bytes.starts_with(kind.begin)) throw Fault(std::string(kind.cause));
  }
  auto sheet = ZipParts::IsZip(bytes) ? ReadSpreadsheet(ZipParts(bytes), keep_going)
                                      : ReadSeparatedText(DecodeFileText(bytes));
  if (sheet && sheet->LineCount() == 0) throw Fault("there is nothing in it");
  return sheet;
}

std::optional<PriceSheet> ReadPriceFile(const std::filesystem::path& file, const KeepGoing& keep_going) {
  const auto under_name = [&](const auto& step) {
    try {
      return step();
    } catch (const Fault& fault) {
      throw Fault(file.string() + " could not be read as a price list: " + fault.what() + ".");
    }
  };
  under_name([&] { CheckFile(file); });
  const std::string bytes = ReadFile(file).value_or("");
  return under_name([&] { return ReadPriceSheet(bytes, keep_going); });
}

}  // namespace tarvane::catalogues
