#include "catalogues/quick_list.h"

#include <string>

#include "catalogues/catalogue.h"
#include "screen/busy.h"
#include "text/trim.h"

namespace tarvane::catalogues {

QuickList::QuickList(Home home, Catalogue& catalogue, Loader load)
    : lstTitles(home, "lstTitles"),
      Command1(home, "Command1", "Quick Load List"),
      catalogue_(catalogue),
      load_(load) {
  lstTitles.SetVisible(false);
  Command1.OnClicked([this] { Load(); });
  lstTitles.OnPicked([this] { Go(); });
  catalogue.Data1.rows().OnRowsChanged([this] { lstTitles.LinesChanged(); });
}

void QuickList::Load() {
  const Busy busy(catalogue_.host());
  listing::RECLIST_ENGINE engine(catalogue_.shop());
  (engine.*load_)(lstTitles);
  lstTitles.SetVisible(true);
  catalogue_.Search.Reset();
}

void QuickList::Go() {
  const std::string line = lstTitles.Entry(lstTitles.selected());
  if (line.empty()) return;
  catalogue_.GoToKey(TrimSpaces(std::string_view(line).substr(0, line.find('*'))));
}

}  // namespace tarvane::catalogues
