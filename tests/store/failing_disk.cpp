#include "store/failing_disk.h"

#include <thread>

namespace tarvane {

namespace {

// Stands before the platform's own file in the memory that SQLite gives.
struct ShimFile {
  sqlite3_file base;
  FailingDisk* disk;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

ShimFile* Shim(sqlite3_file* file) { return reinterpret_cast<ShimFile*>(file); }
sqlite3_file* Real(sqlite3_file* file) { return Shim(file)->real(); }
const sqlite3_io_methods* Methods(sqlite3_file* file) { return Real(file)->pMethods; }
sqlite3_vfs* Platform() { return sqlite3_vfs_find(nullptr); }

template <typename Step>
int Guarded(FailingDisk* disk, int error_code, Step step) {
  const int code = disk->Change(error_code);
  return code == SQLITE_OK ? step() : code;
}

int Write(sqlite3_file* file, const void* data, int size, sqlite3_int64 at) {
  return Guarded(Shim(file)->disk, SQLITE_IOERR_WRITE,
                 [&] { return Methods(file)->xWrite(Real(file), data, size, at); });
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  return Guarded(Shim(file)->disk, SQLITE_IOERR_TRUNCATE,
                 [&] { return Methods(file)->xTruncate(Real(file), size); });
}

int Sync(sqlite3_file* file, int flags) {
  return Guarded(Shim(file)->disk, SQLITE_IOERR_FSYNC,
                 [&] { return Methods(file)->xSync(Real(file), flags); });
}

int Close(sqlite3_file* file) { return Methods(file)->xClose(Real(file)); }
int Read(sqlite3_file* file, void* data, int size, sqlite3_int64 at) {
  return Methods(file)->xRead(Real(file), data, size, at);
}
int FileSize(sqlite3_file* file, sqlite3_int64* size) { return Methods(file)->xFileSize(Real(file), size); }
int Lock(sqlite3_file* file, int kind) { return Methods(file)->xLock(Real(file), kind); }
int Unlock(sqlite3_file* file, int kind) { return Methods(file)->xUnlock(Real(file), kind); }
int CheckReservedLock(sqlite3_file* file, int* locked) {
  return Methods(file)->xCheckReservedLock(Real(file), locked);
}
int FileControl(sqlite3_file* file, int what, void* value) {
  return Methods(file)->xFileControl(Real(file), what, value);
}
int SectorSize(sqlite3_file* file) { return Methods(file)->xSectorSize(Real(file)); }
int Traits(sqlite3_file* file) { return Methods(file)->xDeviceCharacteristics(Real(file)); }

const sqlite3_io_methods kMethods = {
    1,           Close,      Read,   Write,   Truncate, Sync,    FileSize, Lock,    Unlock, CheckReservedLock,
    FileControl, SectorSize, Traits, nullptr, nullptr,  nullptr, nullptr,  nullptr, nullptr};

int Open(sqlite3_vfs* vfs, sqlite3_filename name, sqlite3_file* file, int flags, int* out_flags) {
  Shim(file)->disk = static_cast<FailingDisk*>(vfs->pAppData);
  file->pMethods = nullptr;
  const int code = Platform()->xOpen(Platform(), name, Real(file), flags, out_flags);
  if (code == SQLITE_OK) file->pMethods = &kMethods;
  return code;
}

int Delete(sqlite3_vfs* vfs, const char* name, int sync_folder) {
  return Guarded(static_cast<FailingDisk*>(vfs->pAppData), SQLITE_IOERR_DELETE,
                 [&] { return Platform()->xDelete(Platform(), name, sync_folder); });
}

}  // namespace

FailingDisk::FailingDisk() : vfs_(*Platform()) {
  vfs_.iVersion = 1;
  vfs_.szOsFile = static_cast<int>(sizeof(ShimFile)) + Platform()->szOsFile;
  vfs_.pNext = nullptr;
  vfs_.zName = name_.c_str();
  vfs_.pAppData = this;
  vfs_.xOpen = Open;
  vfs_.xDelete = Delete;
  sqlite3_vfs_register(&vfs_, 0);
}

FailingDisk::~FailingDisk() { sqlite3_vfs_unregister(&vfs_); }

void FailingDisk::Fail(int first, Failure failure, bool lasting) {
  first_ = first;
  failure_ = failure;
  lasting_ = lasting;
  changes_ = 0;
  failed_ = false;
}

int FailingDisk::Change(int error_code) {
  if (wait_.count() > 0) std::this_thread::sleep_for(wait_);
  if (failure_ == Failure::kFull && error_code != SQLITE_IOERR_WRITE) return SQLITE_OK;
  ++changes_;
  if (first_ == 0 || (lasting_ ? changes_ < first_ : changes_ != first_)) return SQLITE_OK;
  failed_ = true;
  return failure_ == Failure::kFull ? SQLITE_FULL : error_code;
}

}  // namespace tarvane
