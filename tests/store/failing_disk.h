#pragma once

#include <sqlite3.h>

#include <chrono>
#include <string>

namespace tarvane {

// An SQLite VFS that passes everything on to the platform's, and fails what changes the disk (write, sync,
// truncate, delete) from a chosen one on, or makes it slow.
class FailingDisk {
 public:
  // An input/output error of every kind, or a full disk on writes alone.
  enum class Failure { kError, kFull };

  FailingDisk();
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  const std::string& name() const { return name_; }  // to be given to Database

  // The `first`th change from now on (from 1) fails, and all later ones if `lasting`. 0: none fails.
  void Fail(int first, Failure failure, bool lasting) {
    first_ = first;
    failure_ = failure;
    lasting_ = lasting;
    changes_ = 0;
    failed_ = false;
  }
  void Heal() { Fail(0, Failure::kError, false); }
  // Waits before each change, so that a process can be caught between two of them.
  void Slow(std::chrono::microseconds wait) { wait_ = wait; }
  // All reads of databases fail from now on, or work again; the system's word for it is an error of the disk.
  void FailReads(bool fail) { reads_fail_ = fail; }
  bool reads_fail() const { return reads_fail_; }
  bool failed() const { return failed_; }  // since the last Fail

  // SQLite's code for one more change; SQLITE_OK where it may go ahead.
  int Change(int error_code);

 private:
  std::string name_ = "failing disk";
  sqlite3_vfs vfs_;
  int first_ = 0;
  int changes_ = 0;
  Failure failure_ = Failure::kError;
  bool lasting_ = false;
  bool failed_ = false;
  bool reads_fail_ = false;
  std::chrono::microseconds wait_{0};
};

}  // namespace tarvane
