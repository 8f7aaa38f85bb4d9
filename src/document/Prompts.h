// The boxes that an operation on the document may need.
#pragma once

#include <string>

#include "util/Message.h"

namespace tarvelin {

/// Answered by "Ja" or "Nein".
struct Question {
    std::string text;
    /// If empty, the program's name.
    std::string title;
    MessageIcon icon = MessageIcon::None;
};

/// Shows messages and asks questions; each call returns once the user has answered.
class Prompts : public MessageSink {
  public:
    /// As `Show`, with a check box to turn off further messages. Returns whether the user still
    /// wants them.
    [[nodiscard]] virtual bool ShowSuppressible(const Message& message) = 0;
    /// Whether the answer is "Ja". Closing the box means "Nein".
    [[nodiscard]] virtual bool Ask(const Question& question) = 0;
};

}  // namespace tarvelin
