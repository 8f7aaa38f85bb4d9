// Plays sounds by Qt Multimedia or the platform's own player; a build without either beeps.
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
    /// Of the sound that is playing.
    QBuffer m_samples;
    std::unique_ptr<QAudioSink> m_sink;
};

}  // namespace tarvelin
