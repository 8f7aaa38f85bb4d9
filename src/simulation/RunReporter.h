// What a run tells its player.
#pragma once

#include "simulation/RunObserver.h"
#include "util/Message.h"

namespace tarvelin {

/// Hands out messages and beeps as they come.
class Laufmeldungen final : public Laufbeobachter {
  public:
    /// `ausgabe` must outlive it.
    explicit Laufmeldungen(MessageSink& ausgabe) : m_ausgabe(ausgabe) {}

    void Schulden(const GameState& stand) override;
    void Unbekannt(Unbekanntes was) override;
    void Piepton() override { m_ausgabe.Beep(); }

  private:
    MessageSink& m_ausgabe;
};

}  // namespace tarvelin
