#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace tarvane::listing {

// Rows on their way, cell behind cell. The strings are used again.
struct RowBatch {
  std::vector<std::string> cells;
  std::size_t size = 0;  // cells in use
};

// Passes batches from the thread that reads a grid to the one that writes the file, one at a time.
class RowQueue {
 public:
  // Takes the rows and gives back an empty batch. False where nobody takes them any more.
  bool Put(RowBatch& batch) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !full_ || closed_; });
    if (closed_) return false;
    std::swap(batch, waiting_);
    batch.size = 0;
    full_ = true;
    changed_.notify_all();
    return true;
  }
  // False behind the last one.
  bool Take(RowBatch& batch) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return full_ || ended_ || closed_; });
    if (closed_ || !full_) return false;
    std::swap(batch, waiting_);
    full_ = false;
    changed_.notify_all();
    return true;
  }
  // No more rows come.
  void End() { Set(ended_); }
  // One of the two gives up.
  void Close() { Set(closed_); }
  bool closed() {
    const std::scoped_lock lock(mutex_);
    return closed_;
  }

 private:
  void Set(bool& flag) {
    const std::scoped_lock lock(mutex_);
    flag = true;
    changed_.notify_all();
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  RowBatch waiting_;
  bool full_ = false;
  bool ended_ = false;
  bool closed_ = false;
};

}  // namespace tarvane::listing
