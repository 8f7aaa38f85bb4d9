// What a run tells its player.
#pragma once

#include "simulation/RunObserver.h"
#include "util/Message.h"

namespace tarvelin {

/// Hands out messages and beeps as they come.
class RunReporter final : public RunObserver {
  public:
    /// `messages` must outlive it.
    explicit RunReporter(MessageSink& messages) : m_messages(messages) {}

    void OnNegativeStock(const GameState& state) override;
    void OnUnknownOrder(UnknownOrderAt where) override;
    void OnEmptyStep() override { m_messages.Beep(); }

  private:
    MessageSink& m_messages;
};

}  // namespace tarvelin
