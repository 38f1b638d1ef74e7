#pragma once

#include <string>
#include <string_view>

#include "printing/rich_text_paper.h"
#include "screen/page_view.h"
#include "screen/screen.h"

namespace tarvane::printing {

// The page preview: pages one at a time, drawn as they are looked at.
class frmPreview : public Screen {
 public:
  static constexpr std::string_view kName = "frmPreview";

  // `pages` must outlive it.
  frmPreview(Host& host, const paper::Pages& pages, PreviewButton button);

  PageView picChild{this, "picChild"};

 private:
  const paper::Pages& pages_;
  PreviewButton button_;
};

}  // namespace tarvane::printing
