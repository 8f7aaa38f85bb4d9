// One sound at a time, by the platform's own player.
#include <windows.h>
// After what it needs.
#include <mmsystem.h>

#include <QApplication>
#include <QDataStream>
#include <utility>

#include "ui/services/SoundPlayer.h"
#include "ui/services/WaveFile.h"

class QAudioSink {};

namespace tarvelin {

namespace {

/// The platform's player takes samples of 8 and 16 bits: of longer ones the upper half.
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

/// A wave file that has its format and its samples and nothing else.
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

// The player ends before its bytes do.
SoundPlayer::~SoundPlayer() {
    ::PlaySoundW(nullptr, nullptr, 0);
}

// Of many that are asked for at once only the last is opened.
void SoundPlayer::Play(const std::filesystem::path& file) {
    m_file = file;
    m_soon.start(0);
}

// The player would say nothing of a file that it can't play, and keep everybody else from writing
// one that it plays. The file is read here, and the player gets bytes.
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
