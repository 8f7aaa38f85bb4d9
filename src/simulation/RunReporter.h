// Tells the player of trouble in a run.
#pragma once

#include "simulation/RunObserver.h"
#include "util/Message.h"

namespace tarvelin {

/// Shows messages and beeps as the run goes on.
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
