#include "store/fault_cause.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>

namespace tarvane {

namespace {

struct Cause {
  int code;
  std::string_view text;
};

// Extended codes first: the first line that fits is told.
constexpr Cause kCauses[] = {
    {SQLITE_READONLY_ROLLBACK, "an unfinished change has to be undone first, and the file is read-only"},
    {SQLITE_READONLY, "the file or its folder is read-only"},
    {SQLITE_FULL, "the disk is full"},
    {SQLITE_BUSY, "it is in use by another program"},
    {SQLITE_LOCKED, "it is in use by another program"},
    {SQLITE_NOTADB, "it is not a database"},
    {SQLITE_CORRUPT, "the file is damaged"},
    {SQLITE_IOERR_NOMEM, "there is not enough memory"},
    {SQLITE_NOMEM, "there is not enough memory"},
    {SQLITE_IOERR, "the disk reported an error"},
    {SQLITE_CANTOPEN, "the file, or its journal beside it, can't be opened"},
    {SQLITE_TOOBIG, "the text is too long"},
};

// Where the system's own number says more than SQLite's code.
constexpr Cause kSystemCauses[] = {
    {ENOSPC, "the disk is full"},
    {EDQUOT, "the disk is full"},
    {EACCES, "the right to use the file is missing"},
    {EPERM, "the right to use the file is missing"},
    {EROFS, "the disk is read-only"},
    {EIO, "the disk reported an error"},
    {EMFILE, "too many files are open"},
    {ENFILE, "too many files are open"},
    {EBADF, "the file's journal is read-only"},
};

constexpr int kAtTheEnd[] = {SQLITE_IOERR_FSYNC, SQLITE_IOERR_TRUNCATE, SQLITE_IOERR_DIR_FSYNC,
                             SQLITE_IOERR_DELETE};

// SQLite tells a disk that can't be read as damage; what the system said stays with the file.
bool IsReadError(sqlite3* handle) {
  int number = 0;
  sqlite3_file_control(handle, nullptr, SQLITE_FCNTL_LAST_ERRNO, &number);
  return number == EIO || number == ENXIO;
}

}  // namespace

FileIdentity FileIdentity::Of(const std::filesystem::path& file) {
  struct stat status {};
  return ::stat(file.c_str(), &status) == 0 ? FileIdentity{status.st_dev, status.st_ino} : FileIdentity{};
}

FaultCause FindCause(sqlite3* handle, int code, const std::filesystem::path& file,
                     const FileIdentity& opened) {
  const int kind = code & 0xFF;
  const bool by_system = kind == SQLITE_IOERR || kind == SQLITE_CANTOPEN;
  FaultCause cause;
  cause.text = handle != nullptr ? sqlite3_errmsg(handle) : sqlite3_errstr(code);
  const auto known = std::find_if(std::begin(kCauses), std::end(kCauses),
                                  [&](const Cause& each) { return each.code == code || each.code == kind; });
  if (known != std::end(kCauses)) cause.text = known->text;
  const int system = handle != nullptr && by_system ? sqlite3_system_errno(handle) : 0;
  for (const Cause& each : kSystemCauses) {
    if (system == each.code) cause.text = each.text;
  }
  cause.damage = kind == SQLITE_CORRUPT;
  if (cause.damage && handle != nullptr && IsReadError(handle)) {
    cause = {"the disk reported an error"};
  }
  if ((by_system || kind == SQLITE_READONLY) && opened.number != 0) {
    const FileIdentity now = FileIdentity::Of(file);
    if (now.number == 0)
      cause.text = "it isn't there any more: it or its folder was moved, renamed or removed";
    if (now.number != 0 && now != opened) cause.text = "another file has been put in its place";
  }
  cause.may_stand = std::find(std::begin(kAtTheEnd), std::end(kAtTheEnd), code) != std::end(kAtTheEnd);
  return cause;
}

}  // namespace tarvane
