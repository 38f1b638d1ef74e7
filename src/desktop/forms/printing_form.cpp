#include <QLabel>

#include "desktop/builders.h"
#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using printing::FrmPrinting;

constexpr int kUsualWidth = 122;   // digits
constexpr int kUsualHeight = 156;  // quarters

Piece Letter(Builder& build, FrmPrinting& screen) {
  std::vector<Builder::PageBuilder> pages;
  for (TextField& text : screen.TxtLetter) {
    pages.emplace_back([build, &text]() mutable {
      const Piece memo = build.Put(text);
      build.form().AddSizer([widget = memo.widget] { widget->setMinimumSize(Digits(36), Quarters(50)); });
      return memo;
    });
  }
  const Piece letter = build.Pages(screen.SSTab1, std::move(pages));
  const Piece dear = build.Fields({{"Dear", {{screen.TxtDear, {}}, build.Text(screen.Label1, true)}}});
  return build.Column({letter.Grow(), dear}, 1);
}

// The ticks, and what the job has of each in a column of its own.
Piece Rooms(Builder& build, FrmPrinting& screen) {
  Pieces lines;
  for (std::size_t i = 0; i <= job::kRoomCount; ++i) {
    const int tick = i < job::kRoomCount ? static_cast<int>(i) + 1 : FrmPrinting::kSingleItems;
    lines.push_back(
        build.Row({build.Tick(screen.Check(tick)), Builder::Spring(), build.Text(screen.RoomTotal[i])}));
  }
  return build.Group("Rooms and single items",
                     {build.Column(lines, 0), build.Row({build.Press(screen.Command6),
                                                         build.Press(screen.Command5), Builder::Spring()})});
}

Piece Ticks(Builder& build, FrmPrinting& screen, const std::vector<int>& numbers) {
  Pieces ticks;
  for (const int number : numbers) ticks.push_back(build.Tick(screen.Check(number)));
  return build.Column(ticks, 0);
}

Piece GoesWithIt(Builder& build, FrmPrinting& screen) {
  const Piece rooms = Rooms(build, screen);
  // What it begins with, and what it ends with.
  const Piece begin =
      Ticks(build, screen, {FrmPrinting::kLetter, FrmPrinting::kCompany, FrmPrinting::kBalance});
  const Piece end =
      Ticks(build, screen, {FrmPrinting::kEndLetter1, FrmPrinting::kEndLetter2, FrmPrinting::kExcept});
  const Piece letter =
      build.Group("Letter", {build.Column({build.Row({begin, Builder::Spring(), end}),
                                           build.Tick(screen.Check(FrmPrinting::kLetterSeparate))},
                                          0)});
  const Piece sheet = build.Group(
      "Work sheet",
      {build.Column({build.Tick(screen.Check(FrmPrinting::kNotes)), build.Tick(screen.CheckDrawings)}, 0)});
  return build.Column({rooms, letter, sheet, Builder::Spring()}, 1);
}

}  // namespace

void BuildPrintingForm(Form& form, FrmPrinting& screen) {
  Builder build(form);
  const Piece letter = Letter(build, screen);
  const Piece goes_with_it = GoesWithIt(build, screen);
  const Piece outcome = build.Text(screen.Outcome);
  qobject_cast<QLabel*>(outcome.widget)->setWordWrap(true);
  FillDialog(form,
             {{},
              {Folding(build, {letter.Grow(), goes_with_it}).Grow()},
              {outcome.Grow(), build.Press(screen.Command1), build.Press(screen.Command7),
               build.Press(screen.Command4), build.Press(screen.Command2),
               build.Press(screen.StartPrinting, true), build.Press(screen.Command3)}},
             &screen.Command3, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  SayWhyOff(form, screen.StartPrinting,
            "Choose one of the first five tabs: the others only hold closing texts.");
}

}  // namespace tarvane::desktop
