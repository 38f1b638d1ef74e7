#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "paper/surface.h"
#include "screen/page_view.h"
#include "screen/screen.h"

namespace tarvane::printing {

// The window on a report's page files: one at a time, at any zoom. It prints a range of the pages, from what
// was drawn and not from the bitmaps, and copies the files into a folder. A page whose file isn't there, or
// is no bitmap, is blank, and a line says so.
class frmMultiPgPreview : public Screen {
 public:
  static constexpr std::string_view kName = "frmMultiPgPreview";

  // `pages` must outlive it. Their files stand in `folder`.
  frmMultiPgPreview(Host& host, const paper::Pages& pages, std::filesystem::path folder);

  PageView picChild{this, "picChild"};
  Button cmdStart{this, "cmdStart", "&First"};
  Button cmdPrevious{this, "cmdPrevious", "P&revious"};
  Label Label2{this, "Label2"};  // "Page 1 of 3"
  Button cmdNext{this, "cmdNext", "&Next"};
  Button cmdEnd{this, "cmdEnd", "&Last"};
  Button cmdGoto{this, "cmdGoto", "&Goto Page#"};
  DropDownList cboPercent{this, "cboPercent"};
  Button cmdZoomIn{this, "cmdZoomIn", "Zoom &In"};
  Button cmdZoomOut{this, "cmdZoomOut", "Zoom &Out"};
  Button cmdPrint{this, "cmdPrint", "&Print"};
  Button cmdCopy{this, "cmdCopy", "&Copy Pages"};
  Label lblStatus{this, "lblStatus"};  // what is going on, what is wrong with the page; may be empty
  Button cmdClose{this, "cmdClose", "&Done"};

  // From 0; outside: the nearest one.
  void ShowPage(int page);

 protected:
  void Load() override { ShowPage(0); }

 private:
  void GotoPage();
  void StepZoom(int entries);
  void PrintRange();
  void CopyPages();
  void CopyInto(const std::filesystem::path& folder);
  bool MayWriteInto(const std::filesystem::path& folder);
  // A page number, from 1 up. Nothing where the worker cancels, or names none that there is, which is told.
  std::optional<int> AskPage(std::string_view prompt, int preset);
  std::filesystem::path FileOf(int page) const;

  const paper::Pages& pages_;
  const std::filesystem::path folder_;
  int page_ = 0;
};

}  // namespace tarvane::printing
