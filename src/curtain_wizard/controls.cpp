#include <initializer_list>
#include <utility>

#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {

void MainCWizard::NameControls() {
  for (Control* control : std::initializer_list<Control*>{
           &RoomIndex, &Txtinfo, &TxtRow, &TxtViewOnly, &TxtAdminVat, &PrintMode, &TotalInches, &TxtMTrack,
           &TxtAutoTrack, &TxtPriceTarget2, &ItemTextPriced, &ItemTextPlain, &ItemTextRoom, &PickedFabric,
           &PickedPrice}) {
    control->SetNeverShown();
  }
  for (const auto& [control, alias] :
       std::initializer_list<std::pair<Control*, const char*>>{{&RoomIndex, "Text37"},
                                                               {&LabourPrice, "Combo3"},
                                                               {&LiningPrice, "Combo4"},
                                                               {&InterliningPrice, "Combo12"},
                                                               {&TapePrice, "Combo2"},
                                                               {&Fullness, "Text3"},
                                                               {&FullnessMirror, "Text20"},
                                                               {&HemAllowanceIns, "Text9"},
                                                               {&HemAllowanceCm, "Text19"}}) {
    control->AddAlias(alias);
  }
}

}  // namespace tarvane::curtain_wizard
