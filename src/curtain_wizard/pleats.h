#pragma once

#include <string>
#include <string_view>

#include "screen/field.h"
#include "screen/screen.h"

namespace tarvane::curtain_wizard {

class MainCWizard;

// How pleats are spread along a track. Lengths are inches; pleats and the spaces between them are of one
// size.
struct PleatLayout {
  std::string size;   // with one decimal
  std::string count;  // of the pleats, worked out of the size before it was rounded, with one decimal

  // "Goblets = 10 @ 4.8 ins - Spaces = 9 @ 4.8 ins - with 2 ins at each side." `label`: "Goblets = ".
  std::string Text(std::string_view label, std::string_view pleats) const;
};

// `track` and `pleats` are texts as they were typed. A track that is no number counts as 0. Where there is no
// number of pleats to divide by, `earlier_size` stands; where the size comes to 0 the count is 0. Never
// faults.
PleatLayout LayOutPleats(std::string_view track, std::string_view pleats, std::string_view earlier_size);

// Tells how far apart pleats go that are sewn by hand, and puts the track and the answer into the wizard.
class FrmPleats : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPleats";

  // `wizard` must outlive the screen.
  FrmPleats(Host& host, MainCWizard& wizard);

  // The result was handed over.
  bool used() const { return used_; }

  TextField PleatTrack{this, "PleatTrack"};  // inches, between the finials
  TextField PleatCount{this, "PleatCount"};
  OptionButton PleatGoblet{this, "PleatGoblet", "Goblet Pleated", kPleats};
  OptionButton PleatFrench{this, "PleatFrench", "French Pleated", kPleats};
  OptionButton PleatPinch{this, "PleatPinch", "Pinch Pleated", kPleats};
  Button CmdCalculate{this, "CmdCalculate", "Calcurlate"};
  TextField PleatText{this, "PleatText"};  // the result, only read
  Button CmdUse{this, "CmdUse", "&Use"};   // off until there is a result for the pleat that is chosen
  Button CmdCancel{this, "CmdCancel", "Cancel"};

 private:
  enum Group { kPleats = 1 };

  void Calculate();
  void Use();

  MainCWizard* wizard_;
  bool used_ = false;
  std::string size_ = "0";  // of the latest calculation
};

}  // namespace tarvane::curtain_wizard
