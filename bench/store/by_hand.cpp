#include "by_hand.h"

#include <stdexcept>

namespace tarvane {

ByHand::ByHand(const std::filesystem::path& file) {
  sqlite3* handle = nullptr;
  const int code =
      sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(handle);
  if (code != SQLITE_OK) throw std::runtime_error("open");
  sqlite3_exec(handle, "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL; PRAGMA cache_size=-1536;",
               nullptr, nullptr, nullptr);
}

ByHand::Prepared ByHand::Prepare(const char* sql) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(handle_.get(), sql, -1, &statement, nullptr) != SQLITE_OK)
    throw std::runtime_error(sql);
  return Prepared(statement);
}

std::vector<std::string> ByHand::Row(sqlite3_stmt* statement) {
  const int columns = sqlite3_column_count(statement);
  std::vector<std::string> row;
  row.reserve(static_cast<std::size_t>(columns));
  for (int i = 0; i < columns; ++i) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
    row.emplace_back(text == nullptr ? "" : text,
                     static_cast<std::size_t>(sqlite3_column_bytes(statement, i)));
  }
  return row;
}

std::vector<std::string> ByHand::FirstRow() {
  const Prepared select = Prepare("SELECT * FROM TblBrindel ORDER BY RefNo LIMIT 1");
  if (sqlite3_step(select.get()) != SQLITE_ROW) throw std::runtime_error("no row");
  return Row(select.get());
}

std::vector<std::vector<std::string>> ByHand::FirstRows(const std::string& prefix, const std::string& behind,
                                                        int most) {
  const Prepared select = Prepare(
      "SELECT * FROM TblBrindel WHERE Name COLLATE NOCASE >= ?1 AND Name COLLATE NOCASE < ?2 "
      "ORDER BY Name COLLATE NOCASE, RefNo LIMIT ?3");
  sqlite3_bind_text(select.get(), 1, prefix.data(), static_cast<int>(prefix.size()), SQLITE_STATIC);
  sqlite3_bind_text(select.get(), 2, behind.data(), static_cast<int>(behind.size()), SQLITE_STATIC);
  sqlite3_bind_int(select.get(), 3, most);
  std::vector<std::vector<std::string>> rows;
  while (sqlite3_step(select.get()) == SQLITE_ROW) rows.push_back(Row(select.get()));
  return rows;
}

std::vector<std::int64_t> ByHand::Keys(const std::string& prefix, const std::string& behind) {
  const Prepared select = Prepare(
      "SELECT RefNo FROM TblBrindel WHERE Name COLLATE NOCASE >= ?1 AND Name COLLATE NOCASE < ?2 "
      "ORDER BY Name COLLATE NOCASE, RefNo");
  sqlite3_bind_text(select.get(), 1, prefix.data(), static_cast<int>(prefix.size()), SQLITE_STATIC);
  sqlite3_bind_text(select.get(), 2, behind.data(), static_cast<int>(behind.size()), SQLITE_STATIC);
  std::vector<std::int64_t> keys;
  while (sqlite3_step(select.get()) == SQLITE_ROW) keys.push_back(sqlite3_column_int64(select.get(), 0));
  return keys;
}

std::int64_t ByHand::Count() {
  const Prepared select = Prepare("SELECT count(*) FROM TblBrindel INDEXED BY TblBrindel_RefNo");
  return sqlite3_step(select.get()) == SQLITE_ROW ? sqlite3_column_int64(select.get(), 0) : -1;
}

void ByHand::Save(std::int64_t key, const std::string& text) {
  if (!update_) {
    update_ = Prepare(
        "UPDATE TblBrindel SET Name = ?1, Town = ?1, \"1T(0)\" = ?1, \"G-Total\" = ?1, \"5Text\" = ?1 WHERE "
        "RefNo = ?2");
  }
  sqlite3_reset(update_.get());
  sqlite3_bind_text(update_.get(), 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  sqlite3_bind_int64(update_.get(), 2, key);
  if (sqlite3_step(update_.get()) != SQLITE_DONE) throw std::runtime_error("save");
}

}  // namespace tarvane
