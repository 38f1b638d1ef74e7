#include "shop/shop.h"

#include "store/row_set.h"
#include "store/table_definition.h"
#include "text/fault.h"
#include "text/utf8.h"
#include "text_number/text_number.h"

namespace tarvane {

Database& Shop::database(std::string_view file) {
  const auto found = databases_.find(file);
  if (found != databases_.end()) return found->second;
  if (file == data_file::kJobs) MakeFilesOfLaterVersions(folder_);
  Database& opened = databases_.emplace(file, Database(File(file))).first->second;
  if (!opened.notice().empty()) notices_.push_back(opened.notice());
  return opened;
}

std::string Shop::Get(const Setting& setting) {
  RowSet admin;
  admin.Open(database(), kAdminTable);
  return admin.HasRow() ? admin.Value(setting.column) : "";
}

std::string Shop::Raise(const Counter& counter) {
  RowSet admin;
  admin.Open(database(), kAdminTable);
  if (!admin.HasRow()) throw Fault("The shop has no settings yet: add a company in the preferences first.");
  admin.SetValue(counter.column, NumberText(ParseLeading(admin.Value(counter.column)) + 1));
  admin.Update();
  return admin.Value(counter.column);
}

std::optional<std::string> Shop::ReadText(std::string_view name) const {
  std::optional<std::string> text = ReadFile(File(name));
  if (text) text = std::string(WithoutByteOrderMark(*text));
  return text;
}

std::vector<std::string> Shop::ReadList(std::string_view name) const {
  return SplitLines(ReadText(name).value_or(""));
}

}  // namespace tarvane
