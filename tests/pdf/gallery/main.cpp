#include <iostream>

#include "gallery.h"
#include "text_number/fault.h"

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
  if (argc != 2) {
    std::cerr << "usage: tarvane-pdf-gallery FILE.pdf\n";
    return 2;
  }
  PrintedMessages messages;
  try {
    tarvane::pdf::WriteGallery({argv[1], TARVANE_DATA_DIR "/Fonts", TARVANE_TEST_DATA "/images"}, messages);
  } catch (const tarvane::Fault& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return messages.count == 0 ? 0 : 1;
}
