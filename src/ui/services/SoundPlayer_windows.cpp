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
Welle Spielbar(Welle welle) {
    constexpr int kLange = 32;
    if (welle.Bits == kLange) {
        std::string kurze;
        for (std::size_t i = 0; i < welle.Abtastwerte.size(); i += 4) {
            kurze.append(welle.Abtastwerte, i + 2, 2);
        }
        welle.Abtastwerte = std::move(kurze);
        welle.Bits = kLange / 2;
    }
    return welle;
}

/// A wave file that has its format and its samples and nothing else.
QByteArray AlsDatei(const Welle& welle) {
    constexpr quint32 kKopf = 36;
    constexpr quint32 kFormatlaenge = 16;
    constexpr quint16 kGanzeZahlen = 1;
    constexpr int kByte = 8;
    const auto laenge = static_cast<quint32>(welle.Abtastwerte.size());
    const int rahmen = welle.Kanaele * welle.Bits / kByte;
    QByteArray bytes;
    QDataStream strom(&bytes, QIODevice::WriteOnly);
    strom.setByteOrder(QDataStream::LittleEndian);
    strom.writeRawData("RIFF", 4);
    strom << kKopf + laenge;
    strom.writeRawData("WAVEfmt ", 8);
    strom << kFormatlaenge << kGanzeZahlen << static_cast<quint16>(welle.Kanaele)
          << static_cast<quint32>(welle.Rate) << static_cast<quint32>(welle.Rate * rahmen)
          << static_cast<quint16>(rahmen) << static_cast<quint16>(welle.Bits);
    strom.writeRawData("data", 4);
    strom << laenge;
    return bytes + QByteArray::fromStdString(welle.Abtastwerte);
}

}  // namespace

Klangausgabe::Klangausgabe() {
    m_gleich.setSingleShot(true);
    m_gleich.callOnTimeout([this] { Beginne(); });
}

// The player ends before its bytes do.
Klangausgabe::~Klangausgabe() {
    ::PlaySoundW(nullptr, nullptr, 0);
}

// Of many that are asked for at once only the last is opened.
void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    m_datei = datei;
    m_gleich.start(0);
}

// The player would say nothing of a file that it can't play, and keep everybody else from writing
// one that it plays. The file is read here, and the player gets bytes.
void Klangausgabe::Beginne() {
    ::PlaySoundW(nullptr, nullptr, 0);
    const auto welle = LiesWelle(m_datei);
    m_abtastwerte.setData(welle ? AlsDatei(Spielbar(*welle)) : QByteArray());
    const auto* const bytes = reinterpret_cast<const wchar_t*>(m_abtastwerte.data().constData());
    if (!welle || ::PlaySoundW(bytes, nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT) == 0) {
        QApplication::beep();
    }
}

}  // namespace tarvelin
