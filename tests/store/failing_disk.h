#pragma once

#include <sqlite3.h>

#include <chrono>
#include <string>

namespace tarvane {

// An SQLite VFS that passes everything on to the platform's, and fails what changes the disk (write, sync,
// truncate, delete) from a chosen one on, or makes it slow.
class FailingDisk {
 public:
  enum class Failure {
    kError,
    kFull
  };  // an input/output error of every kind, or a full disk on writes alone

  FailingDisk();
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  const std::string& name() const { return name_; }  // to be given to Database

  // The `first`th change from now on (from 1) fails, and all later ones if `lasting`. 0: none fails.
  void Fail(int first, Failure failure, bool lasting);
  // Waits before each change, so that a process can be caught between two of them.
  void Slow(std::chrono::microseconds wait) { wait_ = wait; }
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
  std::chrono::microseconds wait_{0};
};

}  // namespace tarvane
