#pragma once

#include <QLibrary>
#include <string>

namespace tarvane::desktop {

// The platform's spooler (CUPS), as far as Qt doesn't tell of it: Qt hands it a job when the last page is
// drawn, and says neither what became of it nor that it be kept back. Without such a spooler nothing is told
// and nothing kept back.
class PrintQueue {
 public:
  PrintQueue() : library_("cups", 2) {}

  // Why what was handed over last wasn't taken, in the spooler's words; "" where it was.
  std::string Trouble();

  // While it lives, what is handed over goes nowhere.
  class KeptBack {
   public:
    explicit KeptBack(PrintQueue& queue) : queue_(queue) { queue_.SetServer("/nowhere/no-spooler"); }
    ~KeptBack() { queue_.SetServer(nullptr); }
    KeptBack(const KeptBack&) = delete;
    KeptBack& operator=(const KeptBack&) = delete;

   private:
    PrintQueue& queue_;
  };

 private:
  void SetServer(const char* server);  // null: the usual one

  QLibrary library_;
};

}  // namespace tarvane::desktop
