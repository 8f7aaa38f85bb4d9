// The real sound: by the platform's own player or Qt Multimedia where one is built in, else the
// system's beep.
#pragma once

#include <QBuffer>
#include <QTimer>
#include <filesystem>
#include <memory>

#include "ui/services/Environment.h"

class QAudioSink;

namespace tarvelin {

class Klangausgabe final : public Klang {
  public:
    Klangausgabe();
    ~Klangausgabe() override;

    void Spiele(const std::filesystem::path& datei) override;

  private:
    void Beginne();

    std::filesystem::path m_datei;
    QTimer m_gleich;
    /// The samples of the sound that plays.
    QBuffer m_abtastwerte;
    std::unique_ptr<QAudioSink> m_senke;
};

}  // namespace tarvelin
