#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "paper/surface.h"
#include "screen/control.h"

namespace tarvane {

// Shows a page of something printed, or a picture file, drawn as it is looked at.
class PageView : public Control {
 public:
  PageView(Home home, std::string name) : Control(home, std::move(name)) {}
  ControlKind kind_of() override { return this; }

  // Null: nothing. They must outlive what is shown of them.
  const paper::Pages* pages() const { return pages_; }
  void SetPages(const paper::Pages* pages);  // page 0 of them
  int page() const { return page_; }         // from 0
  void SetPage(int page);
  int zoom() const { return zoom_; }  // percent
  void SetZoom(int percent);
  // A picture in place of pages; empty for none.
  const std::filesystem::path& picture() const { return picture_; }
  void SetPicture(std::filesystem::path file);

 private:
  const paper::Pages* pages_ = nullptr;
  int page_ = 0;
  int zoom_ = 100;
  std::filesystem::path picture_;
};

// A number that is moved between two ends: a slider, a scroll bar.
class Slider : public Control {
 public:
  Slider(Home home, std::string name, int least = 0, int most = 0)
      : Control(home, std::move(name)), value_(least), least_(least), most_(most) {}
  ControlKind kind_of() override { return this; }
  int value() const { return value_; }
  int least() const { return least_; }
  int most() const { return most_; }
  void SetEnds(int least, int most);
  // Kept between the ends; another value runs the rules.
  void Set(int value);
  void OnMoved(Rule rule) { moved_.push_back(std::move(rule)); }
  void UserMove(int value);

 private:
  int value_;
  int least_;
  int most_;
  Rules moved_;
};

}  // namespace tarvane
