#include "printing/preview.h"

namespace tarvane::printing {

frmPreview::frmPreview(Host& host, const paper::Pages& pages, PreviewButton button)
    : Screen(host, std::string(kName)), pages_(pages), button_(std::move(button)) {
  SetTitle("Print Preview");
  picChild.SetPages(&pages_);
}

}  // namespace tarvane::printing
