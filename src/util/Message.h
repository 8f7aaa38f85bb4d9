// What a message box of the program shows. Messages are made where the facts are known and shown
// at the edge.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarvelin {

/// The icon of a message box.
enum class MessageIcon : std::uint8_t { None, Error, Question, Warning, Information };

/// A modal message with one OK button.
struct Message {
    std::string text;
    /// Empty where a message has no title of its own.
    std::string title;
    MessageIcon icon = MessageIcon::Error;

    friend bool operator==(const Message&, const Message&) = default;
};

/// The title that tells bad input.
inline constexpr const char* kBadInputTitle = "Schwerer Ausnahmefehler 1337 !";

/// Who shows messages: the window by a box, the console on its error stream.
class MessageSink {
  public:
    MessageSink() = default;
    MessageSink(const MessageSink&) = delete;
    MessageSink& operator=(const MessageSink&) = delete;
    virtual ~MessageSink() = default;

    /// Returns when the user has seen the message.
    virtual void Show(const Message& message) = 0;

    /// One beep, for what needs no words.
    virtual void Beep() = 0;
};

/// Keeps messages for later, and never beeps.
class MessageCollector final : public MessageSink {
  public:
    /// `messages` must outlive it.
    explicit MessageCollector(std::vector<Message>& messages) : m_messages(messages) {}

    void Show(const Message& message) override { m_messages.push_back(message); }
    void Beep() override {}

  private:
    std::vector<Message>& m_messages;
};

}  // namespace tarvelin
