#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "desktop/qt_host.h"

namespace tarvane {

// Shows real windows, and answers what is asked from queues; without an answer it takes the preset.
class TrialHost : public QtHost {
 public:
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> inputs;
  std::vector<std::string> messages;

  void Message(std::string_view, std::string_view text, Icon) override { messages.emplace_back(text); }
  Answer Ask(const Question& question) override {
    messages.push_back(question.text);
    if (answers.empty()) return question.preset;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
    if (inputs.empty()) return std::nullopt;
    const auto input = inputs.front();
    inputs.pop_front();
    return input;
  }
};

}  // namespace tarvane
