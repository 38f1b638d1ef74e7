#include "desktop/print_queue.h"

namespace tarvane::desktop {

std::string PrintQueue::Trouble() {
  constexpr int kFirstError = 0x0400;  // below: done, also where some wish was passed over
  const auto error = reinterpret_cast<int (*)()>(library_.resolve("cupsLastError"));
  const auto text = reinterpret_cast<const char* (*)()>(library_.resolve("cupsLastErrorString"));
  if (error == nullptr || text == nullptr || error() < kFirstError) return {};
  const char* told = text();
  return told != nullptr && *told != '\0' ? told : "The spooler gives no reason.";
}

void PrintQueue::SetServer(const char* server) {
  const auto set = reinterpret_cast<void (*)(const char*)>(library_.resolve("cupsSetServer"));
  if (set != nullptr) set(server);
}

}  // namespace tarvane::desktop
