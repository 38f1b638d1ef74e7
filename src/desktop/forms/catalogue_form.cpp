#include "desktop/forms/catalogue_form.h"

#include <QShortcut>

#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using catalogues::Catalogue;

void AddKey(Form& form, const QKeySequence& keys, Button& button) {
  auto* shortcut = Make<QShortcut>(keys, form.window());
  QObject::connect(shortcut, &QShortcut::activated, &form,
                   [&form, &button] { form.Act(button, [&button](Control&) { button.UserPress(); }); });
}

void AddKeys(Form& form, Catalogue& screen) {
  AddKey(form, QKeySequence("Ctrl+N"), screen.CmdFabAdd);
  AddKey(form, QKeySequence("Ctrl+S"), screen.Update);
  auto* find = Make<QShortcut>(QKeySequence("Ctrl+F"), form.window());
  QObject::connect(find, &QShortcut::activated, &form, [&form, &screen] {
    form.Act(screen.Search.FabSText, [](Control& text) { text.UserFocus(); });
  });
}

}  // namespace

Pieces QuickListPieces(Builder& build, catalogues::QuickList& quick) {
  const Piece button = build.Flow({build.Press(quick.Command1)});
  const Piece list = build.List(quick.lstTitles);
  build.Name(quick.lstTitles, "Quick list");
  build.form().AddSizer([widget = list.widget] { widget->setFixedHeight(Quarters(24)); });
  return {button, {list.widget}};
}

void FillCatalogue(Form& form, Catalogue& screen, const CataloguePieces& pieces) {
  Builder build(form);
  const Piece find = build.Find(screen.Search);
  const Piece messages = build.Text(screen.Messages, true);
  TableLook look = pieces.list;
  look.remove = &screen.CmdDelete;
  const Piece table = build.Table(screen.MSFlexGrid1, look);
  form.AddSizer([widget = table.widget] { widget->setMinimumSize(Digits(46), Quarters(40)); });
  build.LeadDown(screen.Search.FabSText, table);
  Pieces left = {table.Grow(), build.Flow({build.Records(screen.Records), Builder::Spring(), messages})};
  if (pieces.below_list) left.push_back(pieces.below_list(build));
  const Piece record = pieces.record(build);

  Pieces buttons = {build.Press(screen.CmdFabAdd), build.Press(screen.Update, screen.use_button() == nullptr),
                    build.Press(screen.CmdDelete), build.Press(screen.CmdExcel)};
  for (Button* button : pieces.more) buttons.push_back(build.Press(*button));
  buttons.push_back(Builder::Spring());
  buttons.push_back(build.Press(screen.CmdCancel));
  for (Button* button : pieces.use) buttons.push_back(build.Press(*button, button == screen.use_button()));

  FillDialog(
      form,
      {find, Folding(build, {build.Column(left).Grow(3), build.Column({record, Builder::Spring()}).Grow(2)}),
       build.Rule(), build.Flow(buttons)},
      &screen.CmdCancel);
  AddKeys(form, screen);
  for (const Button* button : {&screen.Update, &screen.CmdDelete}) {
    SayWhyOff(form, *button, "There is no record. Add one first.");
  }
}

}  // namespace tarvane::desktop
