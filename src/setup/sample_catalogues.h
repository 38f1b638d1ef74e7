#pragma once

#include <filesystem>

namespace tarvane {
class Database;
struct TableDefinition;
}  // namespace tarvane

namespace tarvane::setup {

// Gives a new table of a catalogue (products, accessories, suppliers, templates, prices) the rows of an
// invented shop, in the order in which they stand in its file in `data`/catalogues: all of them or none.
// Other tables stay empty. Faults with the file, and with the line where one is at fault.
void AddSampleRows(Database& database, const TableDefinition& table, const std::filesystem::path& data);

}  // namespace tarvane::setup
