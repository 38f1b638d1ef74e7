#include <QFont>
#include <QLabel>

#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/icons.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

Piece Enlarged(Piece piece, int percent) {
  QFont font;
  font.setPointSizeF(font.pointSizeF() * percent / 100);
  font.setBold(percent > 150);
  piece.widget->setFont(font);
  return piece;
}

Piece Picture() {
  auto* picture = Make<QLabel>();
  const int side = Quarters(24);
  picture->setPixmap(MakeIcon("Estimate").pixmap(QSize(side, side)));
  return {picture};
}

}  // namespace

void BuildSplashForm(Form& form, app::frmSplash& screen) {
  Builder build(form);
  const Piece texts = build.Column(
      {
          Builder::Spring(),
          Enlarged(build.Text(screen.lblProductName), 240),
          build.Text("Curtain and blind estimating", true),
          build.Row({build.Text("Version", true), build.Text(screen.lblVersion), Builder::Spring()}, 1),
          Builder::Spring(),
      },
      1);
  FillDialog(form,
             {
                 build.Row({Builder::Gap(4), Picture(), Builder::Gap(4), texts, Builder::Gap(8)}),
                 Builder::Gap(2),
                 build.Row({Builder::Spring(), build.Press(screen.Command1, true)}),
             },
             &screen.Command1);
}

}  // namespace tarvane::desktop
