// The real sound: by Qt Multimedia where it is built in, else the system's beep.
#pragma once

#include <memory>

#include "ui/Umgebung.h"

class QSoundEffect;

namespace tarvelin {

class Klangausgabe final : public Klang {
  public:
    Klangausgabe();
    ~Klangausgabe() override;

    void Spiele(const std::filesystem::path& datei) override;

  private:
    std::unique_ptr<QSoundEffect> m_effekt;
};

}  // namespace tarvelin
