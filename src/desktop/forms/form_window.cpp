#include "desktop/forms/form_window.h"

#include <QLayout>

#include "desktop/windows.h"

namespace tarvane {

void FillDialog(Form& form, const Pieces& pieces, Button* escape) {
  auto* window = static_cast<DialogWindow*>(form.window());
  Builder build(form);
  window->setLayout(build.Column({build.Scroll(build.Column(pieces))}, 0).layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  if (escape == nullptr) return;
  window->escaped = [&form, escape] {
    if (escape->shown()) form.Act(*escape, [escape](Control&) { escape->UserPress(); });
  };
}

}  // namespace tarvane
