#include "desktop/forms/catalogue_form.h"

#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <algorithm>

#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using catalogues::Catalogue;

constexpr int kUsualWidth = 140;   // digits
constexpr int kUsualHeight = 150;  // quarters

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

// Without a category a search would find nothing, and not say why.
void ChooseCategory(Form& form, Finder& finder, std::string_view usual) {
  const auto* text = qobject_cast<QLineEdit*>(form.WidgetOf(finder.FabSText));
  QObject::connect(text, &QLineEdit::textEdited, &form, [&form, &finder, usual](const QString& typed) {
    if (typed.isEmpty() || finder.CboFabSearch.text() != Finder::kPrompt) return;
    form.Act(finder.CboFabSearch, [&](Control&) { finder.CboFabSearch.SetText(std::string(usual)); });
  });
}

// A column beside something higher stays as high as what is seen of both, so that its end is in view.
class InView : public QWidget {
 public:
  explicit InView(QLayout* layout) {
    setLayout(layout);
    layout->setContentsMargins(0, 0, 0, 0);
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QWidget::showEvent(event);
    for (QWidget* above = parentWidget(); above != nullptr && view_ == nullptr;
         above = above->parentWidget()) {
      if (auto* area = qobject_cast<QScrollArea*>(above)) view_ = area->viewport();
    }
    if (view_ != nullptr) view_->installEventFilter(this);
    Fit();
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    return false;
  }
  bool event(QEvent* event) override {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) Fit();
    return handled;
  }

 private:
  void Fit() {
    if (view_ == nullptr) return;
    const int least = std::max(minimumSizeHint().height(), layout()->minimumHeightForWidth(width()));
    const int height = std::max(least, view_->height() - 2 * Quarters(3));
    if (height != maximumHeight()) setMaximumHeight(height);
  }

  QWidget* view_ = nullptr;
};

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

  // All that there is; the spring is for what it may not have.
  const Piece list = {Make<InView>(build.Column(left).layout), nullptr, 100};
  const Piece both = Folding(build, {build.Column({list, Builder::Spring()}).Grow(3),
                                     build.Column({record, Builder::Spring()}).Grow(2)});
  FillDialog(form, {find, {both}, buttons}, &screen.CmdCancel, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  AddKeys(form, screen);
  if (!pieces.usual_category.empty()) ChooseCategory(form, screen.Search, pieces.usual_category);
  for (const Button* button : {&screen.Update, &screen.CmdDelete}) {
    SayWhyOff(form, *button, "There is no record. Add one first.");
  }
}

}  // namespace tarvane::desktop
