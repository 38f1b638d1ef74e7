#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace tarvane::desktop {

// The steps of a wizard in a row: those that are done with a tick, the present one marked, those to come
// quiet. Where there is no room for all names, the present one keeps its own.
class StepBar : public QWidget {
 public:
  explicit StepBar(std::vector<QString> names);

  void SetStep(int step);
  std::function<void(int)> pressed;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  std::vector<int> Widths() const;
  int WidthOf(int step, bool named) const;
  QFont FontOf(int step) const;
  int StepAt(int x) const;

  std::vector<QString> names_;
  int step_ = 0;
};

}  // namespace tarvane::desktop
