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

class SoundPlayer final : public Sound {
  public:
    SoundPlayer();
    ~SoundPlayer() override;

    void Play(const std::filesystem::path& file) override;

  private:
    void Begin();

    std::filesystem::path m_file;
    QTimer m_soon;
    /// The samples of the sound that plays.
    QBuffer m_samples;
    std::unique_ptr<QAudioSink> m_sink;
};

}  // namespace tarvelin
