#include <iostream>
#include <string_view>

#include "gallery.h"
#include "text/fault.h"

namespace {

class PrintedMessages : public tarvane::pdf::MessageSink {
 public:
  void Show(const tarvane::pdf::Message& message) override {
    std::cerr << message.title << ": " << message.text << '\n';
    ++count;
  }
  int count = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const bool strict = argc == 3 && std::string_view(argv[1]) == "--strict";
  if (argc != 2 && !strict) {
    std::cerr << "usage: tarvane-pdf-gallery [--strict] FILE.pdf\n";
    return 2;
  }
  PrintedMessages messages;
  try {
    tarvane::pdf::WriteGallery(
        {argv[argc - 1], TARVANE_DATA_DIR "/Fonts", TARVANE_TEST_DATA "/images", strict}, messages);
  } catch (const tarvane::Fault& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return messages.count == 0 ? 0 : 1;
}
