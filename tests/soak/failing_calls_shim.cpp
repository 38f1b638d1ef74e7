// Preloaded into a program: counts its calls on files, and fails the nth of a kind, once or from there on.
// Told by the environment:
//   FAILING_CALLS_UNDER   only files whose paths begin so are counted
//   FAILING_CALLS_COUNTS  a file of kCallKinds numbers (long), counted up as calls are made
//   FAILING_CALLS_KIND, _NTH (from 1), _LASTING (0 or 1)
//   FAILING_CALLS_ERRNO   what the call fails with; 0: half of a write is made, then the process is killed
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "soak/call_kinds.h"

namespace {

using tarvane::soak::CallKind;

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

long Number(const char* name) {
  const char* text = std::getenv(name);
  return text == nullptr ? 0 : std::strtol(text, nullptr, 10);
}

struct Orders {
  std::string_view under = "\n";
  CallKind kind = static_cast<CallKind>(Number("FAILING_CALLS_KIND"));
  long nth = Number("FAILING_CALLS_NTH");
  bool lasting = Number("FAILING_CALLS_LASTING") != 0;
  int error = static_cast<int>(Number("FAILING_CALLS_ERRNO"));
  long* counts = nullptr;

  Orders() {
    const char* folder = std::getenv("FAILING_CALLS_UNDER");
    const char* file = std::getenv("FAILING_CALLS_COUNTS");
    if (folder == nullptr || file == nullptr) return;
    const int handle = Real<int(const char*, int, ...)>("open")(file, O_RDWR | O_CLOEXEC);
    void* shared = ::mmap(nullptr, sizeof(long) * tarvane::soak::kCallKinds, PROT_READ | PROT_WRITE,
                          MAP_SHARED, handle, 0);
    ::close(handle);
    if (shared == MAP_FAILED) std::abort();
    counts = static_cast<long*>(shared);
    under = folder;
  }
};

const Orders& TheOrders() {
  static const Orders orders;
  return orders;
}

// Counts a call. True where it shall fail; errno is set then.
bool Fails(CallKind kind, std::string_view path) {
  const Orders& orders = TheOrders();
  if (orders.counts == nullptr || !path.starts_with(orders.under)) return false;
  const long count = ++orders.counts[static_cast<int>(kind)];
  if (kind != orders.kind || orders.nth == 0) return false;
  if (count != orders.nth && !(orders.lasting && count > orders.nth)) return false;
  if (orders.error == 0 && kind != CallKind::kWrite) ::kill(::getpid(), SIGKILL);
  errno = orders.error;
  return true;
}

bool Fails(CallKind kind, int file) {
  char link[64];
  char path[PATH_MAX];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
  const int before = errno;
  const ssize_t size = ::readlink(link, path, sizeof path);
  errno = before;
  return size > 0 && Fails(kind, std::string_view(path, static_cast<std::size_t>(size)));
}

template <typename Handle, typename Function, typename... More>
auto Call(CallKind kind, const char* name, Handle file, More... more) {
  using Result = decltype(Real<Function>(name)(file, more...));
  return Fails(kind, file) ? static_cast<Result>(-1) : Real<Function>(name)(file, more...);
}

// A write that ends the process leaves its first half.
template <typename Function, typename... More>
ssize_t Write(const char* name, int file, const void* data, std::size_t size, More... more) {
  if (!Fails(CallKind::kWrite, file)) return Real<Function>(name)(file, data, size, more...);
  if (TheOrders().error != 0) return -1;
  Real<Function>(name)(file, data, size / 2, more...);
  ::kill(::getpid(), SIGKILL);
  return -1;
}

// The mode is there only where a file may be made; elsewhere it is read and not used.
template <typename Call>
int Open(const char* path, Call call) {
  return Fails(CallKind::kOpen, path) ? -1 : call();
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return Open(path, [&] { return Real<int(const char*, int, ...)>("open")(path, flags, mode); });
}
int open64(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return Open(path, [&] { return Real<int(const char*, int, ...)>("open64")(path, flags, mode); });
}
int openat(int folder, const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  return Open(path,
              [&] { return Real<int(int, const char*, int, ...)>("openat")(folder, path, flags, mode); });
}
FILE* fopen(const char* path, const char* mode) {
  return Fails(CallKind::kOpen, path) ? nullptr : Real<FILE*(const char*, const char*)>("fopen")(path, mode);
}
FILE* fopen64(const char* path, const char* mode) {
  return Fails(CallKind::kOpen, path) ? nullptr
                                      : Real<FILE*(const char*, const char*)>("fopen64")(path, mode);
}

ssize_t read(int file, void* data, std::size_t size) {
  return Call<int, ssize_t(int, void*, std::size_t)>(CallKind::kRead, "read", file, data, size);
}
ssize_t pread(int file, void* data, std::size_t size, off_t at) {
  return Call<int, ssize_t(int, void*, std::size_t, off_t)>(CallKind::kRead, "pread", file, data, size, at);
}
ssize_t pread64(int file, void* data, std::size_t size, off64_t at) {
  return Call<int, ssize_t(int, void*, std::size_t, off64_t)>(CallKind::kRead, "pread64", file, data, size,
                                                              at);
}

ssize_t write(int file, const void* data, std::size_t size) {
  return Write<ssize_t(int, const void*, std::size_t)>("write", file, data, size);
}
ssize_t pwrite(int file, const void* data, std::size_t size, off_t at) {
  return Write<ssize_t(int, const void*, std::size_t, off_t)>("pwrite", file, data, size, at);
}
ssize_t pwrite64(int file, const void* data, std::size_t size, off64_t at) {
  return Write<ssize_t(int, const void*, std::size_t, off64_t)>("pwrite64", file, data, size, at);
}

int fsync(int file) { return Call<int, int(int)>(CallKind::kSync, "fsync", file); }
int fdatasync(int file) { return Call<int, int(int)>(CallKind::kSync, "fdatasync", file); }
int ftruncate(int file, off_t size) noexcept {
  return Call<int, int(int, off_t)>(CallKind::kTruncate, "ftruncate", file, size);
}
int ftruncate64(int file, off64_t size) noexcept {
  return Call<int, int(int, off64_t)>(CallKind::kTruncate, "ftruncate64", file, size);
}
int rename(const char* from, const char* to) noexcept {
  return Call<const char*, int(const char*, const char*)>(CallKind::kRename, "rename", from, to);
}
int unlink(const char* path) noexcept {
  return Call<const char*, int(const char*)>(CallKind::kUnlink, "unlink", path);
}

}  // extern "C"
