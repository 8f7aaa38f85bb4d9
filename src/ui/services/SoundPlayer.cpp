// One sound at a time.
#include "ui/services/SoundPlayer.h"

#include <QApplication>
#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>

#include "ui/services/WaveFile.h"

namespace tarvelin {

namespace {

QAudioFormat FormatVon(const Welle& welle) {
    QAudioFormat format;
    format.setSampleRate(welle.Rate);
    format.setChannelCount(welle.Kanaele);
    format.setSampleFormat(welle.Bits == 8    ? QAudioFormat::UInt8
                           : welle.Bits == 16 ? QAudioFormat::Int16
                                              : QAudioFormat::Int32);
    return format;
}

}  // namespace

Klangausgabe::Klangausgabe() {
    m_gleich.setSingleShot(true);
    m_gleich.callOnTimeout([this] { Beginne(); });
}

Klangausgabe::~Klangausgabe() = default;

// Of many that are asked for at once only the last is opened.
void Klangausgabe::Spiele(const std::filesystem::path& datei) {
    m_datei = datei;
    m_gleich.start(0);
}

// The toolkit's own player of files hangs at some, divides by nothing at others, and keeps what it
// once read under a name. The file is read here, and the sound card gets samples.
void Klangausgabe::Beginne() {
    m_senke.reset();
    m_abtastwerte.close();
    const auto welle = LiesWelle(m_datei);
    const QAudioDevice geraet = QMediaDevices::defaultAudioOutput();
    if (!welle || geraet.isNull()) {
        QApplication::beep();
        return;
    }
    m_abtastwerte.setData(QByteArray::fromStdString(welle->Abtastwerte));
    m_abtastwerte.open(QIODevice::ReadOnly);
    m_senke = std::make_unique<QAudioSink>(geraet, FormatVon(*welle));
    m_senke->start(&m_abtastwerte);
    if (m_senke->error() != QAudio::NoError) {
        QApplication::beep();
    }
}

}  // namespace tarvelin
