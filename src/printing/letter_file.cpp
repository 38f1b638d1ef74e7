#include "printing/letter_file.h"

#include "rich_text/rtf.h"

namespace tarvane::printing {
namespace {

std::string Read(const std::filesystem::path& file) {
  std::optional<std::string> rtf = ReadFile(file);
  if (!rtf) {
    throw Fault("The letter " + file.string() +
                " isn't there. Put it back from a copy, or run tarvane-setup on the folder, which lays down "
                "what is missing.");
  }
  if (!rich_text::LooksLikeRtf(*rtf)) {
    throw Fault(file.string() +
                " is no rich text file. Open it with the word processor that wrote it, and save it as rich "
                "text (RTF).");
  }
  return *std::move(rtf);
}

}  // namespace

std::optional<std::string> ReadLetterFile(Screen& screen, const Shop& shop, std::string_view name) {
  try {
    return Read(shop.File(name));
  } catch (const Fault& fault) {
    screen.Message(fault.what(), kProgramTitle, Icon::kWarning);
    return std::nullopt;
  }
}

}  // namespace tarvane::printing
