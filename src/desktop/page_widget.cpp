#include <QSlider>
#include <QWidget>

#include "desktop/builders.h"
#include "desktop/make.h"
#include "screen/kinds.h"

namespace tarvane::desktop {

Piece Builder::Page(PageView& view) {
  auto* made = Make<QWidget>();
  form_->Bind(view, made, [](Aspect) {});
  return {made};
}

Piece Builder::Slide(Slider& slider) {
  auto* made = Make<QSlider>(Qt::Horizontal);
  form_->Bind(slider, made, [](Aspect) {});
  return {made};
}

}  // namespace tarvane::desktop
