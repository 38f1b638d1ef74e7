#include <QTextEdit>

#include "desktop/builders.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "screen/kinds.h"

namespace tarvane::desktop {

Piece Builder::Rich(RichTextBox& box) {
  auto* made = Make<QTextEdit>();
  form_->Bind(box, made, [made, &box](Aspect aspect) {
    if (aspect == Aspect::kText) made->setPlainText(ToQt(box.PlainText()));
  });
  return {made};
}

}  // namespace tarvane::desktop
