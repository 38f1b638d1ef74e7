#include "paper/pdf_file.h"

#include "text/fault.h"

namespace tarvane::paper {

std::string WritePdf(const Pages&, const std::filesystem::path&, const PdfInformation&) {
  throw Fault("Not yet.");
}

}  // namespace tarvane::paper
