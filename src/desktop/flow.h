#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace tarvane::desktop {

// Items side by side, which go on in the next row where the width is used up. In each row those with a
// stretch share the spare width; springs and distances at a row's ends fall away.
class FlowLayout : public QLayout {
 public:
  // Distances in pixels, between items and between rows.
  FlowLayout(int across, int down);
  ~FlowLayout() override;

  void Add(QWidget* widget, int stretch);
  void Add(QLayout* layout, int stretch);
  void AddGap(int width);
  void AddSpring(int stretch);

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;  // all in one row
  QSize minimumSize() const override;
  void setGeometry(const QRect& room) override;

 private:
  struct Item {
    std::unique_ptr<QLayoutItem> item;
    int stretch = 0;
  };
  using Row = std::vector<const Item*>;

  void Keep(QLayoutItem* item, int stretch);
  std::vector<Row> Rows(int width) const;
  int WidthOf(const Row& row) const;
  int HeightOf(const Row& row, int width) const;
  void Place(const Row& row, const QRect& room) const;

  std::vector<Item> items_;
  int across_;
  int down_;
};

}  // namespace tarvane::desktop
