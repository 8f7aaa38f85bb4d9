// Plays by Qt Multimedia, one sound at a time.
#include "ui/services/SoundPlayer.h"

#include <QApplication>
#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>

#include "ui/services/WaveFile.h"

namespace tarvelin {

namespace {

QAudioFormat FormatOf(const Wave& wave) {
    QAudioFormat format;
    format.setSampleRate(wave.rate);
    format.setChannelCount(wave.channels);
    format.setSampleFormat(wave.bits == 8    ? QAudioFormat::UInt8
                           : wave.bits == 16 ? QAudioFormat::Int16
                                             : QAudioFormat::Int32);
    return format;
}

}  // namespace

SoundPlayer::SoundPlayer() {
    m_soon.setSingleShot(true);
    m_soon.callOnTimeout([this] { Begin(); });
}

SoundPlayer::~SoundPlayer() = default;

// Of several sounds at once only the last is read.
void SoundPlayer::Play(const std::filesystem::path& file) {
    m_file = file;
    m_soon.start(0);
}

// The toolkit's own player hangs on some files, divides by zero on others, and caches files by
// name. So we read the file and give it samples.
void SoundPlayer::Begin() {
    m_sink.reset();
    m_samples.close();
    const auto wave = ReadWave(m_file);
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (!wave || device.isNull()) {
        QApplication::beep();
        return;
    }
    m_samples.setData(QByteArray::fromStdString(wave->samples));
    m_samples.open(QIODevice::ReadOnly);
    m_sink = std::make_unique<QAudioSink>(device, FormatOf(*wave));
    m_sink->start(&m_samples);
    if (m_sink->error() != QAudio::NoError) {
        QApplication::beep();
    }
}

}  // namespace tarvelin
