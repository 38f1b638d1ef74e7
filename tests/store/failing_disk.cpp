#include "store/failing_disk.h"

#include <cerrno>
#include <thread>

namespace tarvane {

namespace {

// Lies behind the platform's own file in the memory that SQLite gives.
struct Shim {
  FailingDisk* disk;
  const sqlite3_io_methods* real;
  sqlite3_io_methods methods;  // the real ones, but for those below
};

sqlite3_vfs* Platform() { return sqlite3_vfs_find(nullptr); }
FailingDisk* DiskOf(sqlite3_vfs* vfs) { return static_cast<FailingDisk*>(vfs->pAppData); }
Shim* ShimOf(sqlite3_file* file) {
  return reinterpret_cast<Shim*>(reinterpret_cast<char*>(file) + Platform()->szOsFile);
}

template <typename Step>
int Guarded(FailingDisk* disk, int error_code, Step step) {
  const int code = disk->Change(error_code);
  return code == SQLITE_OK ? step() : code;
}

int Write(sqlite3_file* file, const void* data, int size, sqlite3_int64 at) {
  return Guarded(ShimOf(file)->disk, SQLITE_IOERR_WRITE,
                 [&] { return ShimOf(file)->real->xWrite(file, data, size, at); });
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  return Guarded(ShimOf(file)->disk, SQLITE_IOERR_TRUNCATE,
                 [&] { return ShimOf(file)->real->xTruncate(file, size); });
}

int Sync(sqlite3_file* file, int flags) {
  return Guarded(ShimOf(file)->disk, SQLITE_IOERR_FSYNC,
                 [&] { return ShimOf(file)->real->xSync(file, flags); });
}

int Read(sqlite3_file* file, void* data, int size, sqlite3_int64 at) {
  if (ShimOf(file)->disk->reads_fail()) return SQLITE_IOERR_CORRUPTFS;  // what an EIO becomes
  return ShimOf(file)->real->xRead(file, data, size, at);
}

int FileControl(sqlite3_file* file, int what, void* value) {
  if (what != SQLITE_FCNTL_LAST_ERRNO || !ShimOf(file)->disk->reads_fail())
    return ShimOf(file)->real->xFileControl(file, what, value);
  *static_cast<int*>(value) = EIO;
  return SQLITE_OK;
}

int Open(sqlite3_vfs* vfs, sqlite3_filename name, sqlite3_file* file, int flags, int* out_flags) {
  const int code = Platform()->xOpen(Platform(), name, file, flags, out_flags);
  if (code != SQLITE_OK) return code;
  Shim* shim = ShimOf(file);
  *shim = {DiskOf(vfs), file->pMethods, *file->pMethods};
  shim->methods.iVersion = 1;  // no shared memory, no mapped files: they would go past the shim
  shim->methods.xWrite = Write;
  shim->methods.xTruncate = Truncate;
  shim->methods.xSync = Sync;
  shim->methods.xRead = Read;
  shim->methods.xFileControl = FileControl;
  file->pMethods = &shim->methods;
  return SQLITE_OK;
}

int Delete(sqlite3_vfs* vfs, const char* name, int sync_folder) {
  return Guarded(DiskOf(vfs), SQLITE_IOERR_DELETE,
                 [&] { return Platform()->xDelete(Platform(), name, sync_folder); });
}

}  // namespace

FailingDisk::FailingDisk() : vfs_(*Platform()) {
  vfs_.iVersion = 1;
  vfs_.szOsFile = Platform()->szOsFile + static_cast<int>(sizeof(Shim));
  vfs_.pNext = nullptr;
  vfs_.zName = name_.c_str();
  vfs_.pAppData = this;
  vfs_.xOpen = Open;
  vfs_.xDelete = Delete;
  sqlite3_vfs_register(&vfs_, 0);
}

FailingDisk::~FailingDisk() { sqlite3_vfs_unregister(&vfs_); }

int FailingDisk::Change(int error_code) {
  if (wait_.count() > 0) std::this_thread::sleep_for(wait_);
  if (failure_ == Failure::kFull && error_code != SQLITE_IOERR_WRITE) return SQLITE_OK;
  ++changes_;
  if (first_ == 0 || (lasting_ ? changes_ < first_ : changes_ != first_)) return SQLITE_OK;
  failed_ = true;
  return failure_ == Failure::kFull ? SQLITE_FULL : error_code;
}

}  // namespace tarvane
