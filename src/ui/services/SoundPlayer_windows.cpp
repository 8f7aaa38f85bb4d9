// Plays by the platform's own player, one sound at a time.
#include <windows.h>
// Needs windows.h first.
#include <mmsystem.h>

#include <QApplication>
#include <QDataStream>
#include <utility>

#include "ui/services/SoundPlayer.h"
#include "ui/services/WaveFile.h"

class QAudioSink {};

namespace tarvelin {

namespace {

/// The player takes samples of 8 and 16 bits only: keeps the upper half of longer ones.
Wave Playable(Wave wave) {
    constexpr int kLong = 32;
    if (wave.bits == kLong) {
        std::string shortened;
        for (std::size_t i = 0; i < wave.samples.size(); i += 4) {
            shortened.append(wave.samples, i + 2, 2);
        }
        wave.samples = std::move(shortened);
        wave.bits = kLong / 2;
    }
    return wave;
}

/// A wave file in memory, with format and samples only.
QByteArray ToFile(const Wave& wave) {
    constexpr quint32 kHeader = 36;
    constexpr quint32 kFormatLength = 16;
    constexpr quint16 kWholeNumbers = 1;
    constexpr int kByte = 8;
    const auto length = static_cast<quint32>(wave.samples.size());
    const int frame = wave.channels * wave.bits / kByte;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << kHeader + length;
    stream.writeRawData("WAVEfmt ", 8);
    stream << kFormatLength << kWholeNumbers << static_cast<quint16>(wave.channels)
           << static_cast<quint32>(wave.rate) << static_cast<quint32>(wave.rate * frame)
           << static_cast<quint16>(frame) << static_cast<quint16>(wave.bits);
    stream.writeRawData("data", 4);
    stream << length;
    return bytes + QByteArray::fromStdString(wave.samples);
}

}  // namespace

SoundPlayer::SoundPlayer() {
    m_soon.setSingleShot(true);
    m_soon.callOnTimeout([this] { Begin(); });
}

// Stops the player, which reads from `m_samples`.
SoundPlayer::~SoundPlayer() {
    ::PlaySoundW(nullptr, nullptr, 0);
}

// Of several sounds at once only the last is read.
void SoundPlayer::Play(const std::filesystem::path& file) {
    m_file = file;
    m_soon.start(0);
}

// The player doesn't report files that it can't play, and locks those that it plays. So we read the
// file and give it bytes.
void SoundPlayer::Begin() {
    ::PlaySoundW(nullptr, nullptr, 0);
    const auto wave = ReadWave(m_file);
    m_samples.setData(wave ? ToFile(Playable(*wave)) : QByteArray());
    const auto* const bytes = reinterpret_cast<const wchar_t*>(m_samples.data().constData());
    if (!wave || ::PlaySoundW(bytes, nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT) == 0) {
        QApplication::beep();
    }
}

}  // namespace tarvelin
