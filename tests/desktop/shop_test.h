#pragma once

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/main_screen.h"
#include "desktop/qt_host.h"
#include "desktop/worker.h"
#include "setup/setup.h"

namespace tarvane::desktop {

// Shows real windows, and answers what is asked from queues; without an answer it takes the preset.
class TrialHost : public QtHost {
 public:
  std::deque<Answer> answers;
  std::vector<std::string> messages;
  std::deque<Keep> keeps;  // for what isn't saved; without an answer it is dropped
  std::vector<std::string> unsaved;

  void Message(std::string_view, std::string_view text, Icon) override { messages.emplace_back(text); }
  Answer Ask(const Question& question) override {
    messages.push_back(question.text);
    return Next(answers, question.preset);
  }
  // A window that ends the program would end the tests as if they had passed.
  [[noreturn]] void EndProcess() override { std::abort(); }
  Keep AskToKeep(const std::string& what) override {
    unsaved.push_back(what);
    return Next(keeps, Keep::kDrop);
  }
  std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
    return std::nullopt;
  }

 private:
  template <typename Value>
  static Value Next(std::deque<Value>& queue, Value preset) {
    if (queue.empty()) return preset;
    const Value next = queue.front();
    queue.pop_front();
    return next;
  }
};

// The sample shop in a folder of its own, gone with it.
class SampleShop {
 public:
  SampleShop() {
    setup::SetUpFolder({folder(), TARVANE_DATA_DIR, true}, [](std::string_view, setup::SetupResult) {});
  }
  std::filesystem::path folder() const { return FromQt(base_.filePath("shop")); }

 private:
  QTemporaryDir base_;
};

// The program over the sample shop.
class ShopTest : public testing::Test {
 protected:
  ShopTest() { QSettings().clear(); }

  // Runs it: `look` is called for each window that comes up, which then is closed.
  void Run(const std::function<void(Form&)>& look) {
    host_.OnShown([look](Form& form) {
      look(form);
      form.screen().Close();
    });
    main_.RunAsMain();
  }
  template <typename Widget = QWidget>
  static Widget* WidgetOf(const Form& form, const Control& control) {
    return qobject_cast<Widget*>(form.WidgetOf(control));
  }
  // In the window on top.
  void TabTo(const Control& control) {
    const auto* widget = WidgetOf(*host_.forms().back(), control);
    for (int i = 0; i < 200 && !(widget->isVisible() && widget->hasFocus()); ++i) Key(Qt::Key_Tab);
    ASSERT_TRUE(widget->hasFocus()) << control.name();
  }

  SampleShop folder_;
  TrialHost host_;
  Shop shop_{folder_.folder()};
  app::MainScreen main_{host_, shop_};
};

}  // namespace tarvane::desktop
