#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

#include "desktop/builders.h"

class QBoxLayout;

namespace tarvane::desktop {

// A text in one line, with an ellipsis where there is no room for all of it; the whole is in the tooltip.
class ElidedLabel : public QLabel {
 public:
  ElidedLabel();
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

// Pieces side by side where the window is wide enough for them, else one under the other. For what stands in
// a Builder::Scroll.
class FoldingRow : public QWidget {
 public:
  FoldingRow(Builder& build, const Pieces& pieces, int quarters);
  QSize sizeHint() const override;  // side by side
  QSize minimumSizeHint() const override;
  bool is_folded() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  int WidthSideBySide() const;

  QBoxLayout* layout_;
};

Piece Folding(Builder& build, const Pieces& pieces, int quarters = 5);

}  // namespace tarvane::desktop
