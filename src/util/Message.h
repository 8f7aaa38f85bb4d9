// Messages to the user: made where the facts are known, shown by the window or the console.
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
    /// May be empty.
    std::string title;
    MessageIcon icon = MessageIcon::Error;

    friend bool operator==(const Message&, const Message&) = default;
};

/// The title of messages about bad input.
inline constexpr const char* kBadInputTitle = "Schwerer Ausnahmefehler 1337 !";

/// Shows messages: the window in a box, the console on its error stream.
class MessageSink {
  public:
    MessageSink() = default;
    MessageSink(const MessageSink&) = delete;
    MessageSink& operator=(const MessageSink&) = delete;
    virtual ~MessageSink() = default;

    /// Returns once the user has dismissed the message.
    virtual void Show(const Message& message) = 0;

    /// A beep instead of a message.
    virtual void Beep() = 0;
};

/// Collects messages for later and ignores beeps.
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
