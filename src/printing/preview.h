#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "printing/rich_text_paper.h"
#include "screen/control_family.h"
#include "screen/page_view.h"
#include "screen/screen.h"

namespace tarvane::printing {

// The page preview: pages one at a time, drawn as they are looked at.
class frmPreview : public Screen {
 public:
  static constexpr std::string_view kName = "frmPreview";
  enum Command { kPrint, kZoomIn, kZoomOut };  // of btnPreview
  static constexpr int kMostZoom = 200;
  static constexpr int kLeastZoom = 30;
  static constexpr int kZoomStep = 10;
  static std::vector<std::string> ZoomEntries();  // the largest first: "200%"

  // `pages` must outlive it.
  frmPreview(Host& host, const paper::Pages& pages, PreviewButton button);

  std::array<Button, 3> btnPreview = MakeFamily<3>([this](int i) {
    constexpr const char* kCaptions[] = {"&Print", "Zoom &In", "Zoom &Out"};
    return Button(this, "btnPreview", kCaptions[i], i);
  });
  Button CmdSavePdf{this, "CmdSavePdf", "Save as &PDF"};
  Button CmdEmail{this, "CmdEmail", "&E-mail"};
  Button CmdPrintSetup{this, "CmdPrintSetup", "&Printer Setup"};
  Button cmdStart{this, "cmdStart", "|<"};
  Button cmdPrevious{this, "cmdPrevious", "<"};
  Label Label2{this, "Label2", -1, "Page 1 Of 1"};
  Button cmdNext{this, "cmdNext", ">"};
  Button cmdEnd{this, "cmdEnd", ">|"};
  Slider Slider1{this, "Slider1", 1, 1};  // the page, from 1
  DropDownList cboPercent{this, "cboPercent"};
  Button cmdClose{this, "cmdClose", "&Done"};
  TabStrip tabPreview{this, "tabPreview", {"Page 1"}};
  PageView picChild{this, "picChild"};
  // How far the page can be moved in a view that is as large as the page at 100 %, in points. Windows have
  // scroll bars of their own.
  Slider vscPreview{this, "vscPreview"};
  Slider hscPreview{this, "hscPreview"};

  // The paper may have become another one: makes the pages anew, which must outlive the screen.
  void OnPaperChanged(std::function<const paper::Pages&()> remake) { remake_ = std::move(remake); }

  int zoom() const { return picChild.zoom(); }  // percent
  void ShowPage(int page);                      // from 0; kept between the first and the last

 protected:
  void Load() override;

 private:
  void TakePages(const paper::Pages& pages);
  void TakeZoom();
  void Zoom(int steps);  // up in the list where above 0
  void SizePreview();
  void Print();
  void SetUpPrinter();
  // Nothing where the worker cancels. Faults where it can't be written.
  std::optional<std::filesystem::path> SavePdf(std::string_view title);
  void Email();
  std::string PdfName() const;

  const paper::Pages* pages_;
  PreviewButton button_;
  std::function<const paper::Pages&()> remake_;
  std::string told_;  // of the file that was saved last: where it is, and what it lacks
};

}  // namespace tarvane::printing
