#pragma once

#include <filesystem>

namespace tarvane {
class Database;
struct TableDefinition;
}  // namespace tarvane

namespace tarvane::setup {

// Gives a new table the row that the program expects in it: settings, company details and letters out of the
// data folder; other tables stay empty. Faults where a file of the data folder is missing.
void AddFirstRow(Database& database, const TableDefinition& table, const std::filesystem::path& data);

}  // namespace tarvane::setup
