#pragma once

#include <QWidget>
#include <string>

namespace tarvane::desktop {

// A barcode for a scanner to read off the screen: black on white whatever the colours of the windows are,
// with its quiet zones, each unit a whole number of the screen's own dots.
class BarcodeDrawing : public QWidget {
 public:
  explicit BarcodeDrawing(QWidget* parent = nullptr);

  // `bars`: '1' for a bar, '0' for a gap. "": only the note is shown, which may be empty too.
  void Show(const std::string& bars, const QString& note);
  // What stands in place of bars; empty while they are drawn.
  QString note() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int DotsPerUnit() const;

  std::string bars_;
  QString note_;
};

}  // namespace tarvane::desktop
