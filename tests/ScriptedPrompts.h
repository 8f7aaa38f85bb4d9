// Boxes that record what is shown and asked, and answer at once.
#pragma once

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "document/Prompts.h"

namespace tarvelin {

/// `Base` is `Prompts`, or an interface that has more.
template <class Base>
class Scripted : public Base {
  public:
    void Show(const Message& message) override {
        if (closedAll) {
            return;
        }
        texts.push_back(message.text);
        headers.emplace_back(message.title, message.icon);
        if (onMessage) {
            onMessage();
        }
    }
    bool ShowSuppressible(const Message& message) override {
        Show(message);
        return ++suppressible < suppress;
    }
    void Beep() override {}
    bool Ask(const Question& question) override {
        if (closedAll) {
            return false;
        }
        texts.push_back(question.text);
        headers.emplace_back(question.title, question.icon);
        if (onQuestion) {
            onQuestion();
        }
        return answer && !closedAll;
    }

    std::vector<std::string> texts;
    /// Title and icon of each message and question.
    std::vector<std::pair<std::string, MessageIcon>> headers;
    std::function<void()> onMessage;
    std::function<void()> onQuestion;
    bool answer = false;
    /// From which suppressible message on, counted from 1, the player suppresses the rest.
    int suppress = std::numeric_limits<int>::max();
    int suppressible = 0;
    /// No more boxes open.
    bool closedAll = false;
};

}  // namespace tarvelin
