// The life of the window: start, plan files, stop.
#include "ui/frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QWindow>

#include "persistence/Planablage.h"
#include "ui/Skinbilder.h"
#include "ui/Standmeldungen.h"
#include "util/Nuetzliches.h"

namespace tarvelin {

void frmMain::Form_Load() {
    m_Fra_Skin->FillSkinList();
    m_alarme->LiesKonfiguration();
    LiesSkin();
    show();
    WarteAufBildschirm();
    ErsterStart();
    StelleWiederHer();
}

// A box that comes up before the window has its place would lie beside it.
void frmMain::WarteAufBildschirm() {
    constexpr int kLaengstens = 500;
    constexpr int kHappen = 10;
    QDeadlineTimer frist(kLaengstens);
    while (!windowHandle()->isExposed() && !frist.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kHappen);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// A web skin is shown as it landed; nothing is fetched at a start.
void frmMain::LiesSkin() {
    const Byte mode = m_konfiguration.Skinmodus();
    m_Fra_Skin->txt_Pfad->setText(AlsQString(m_konfiguration.Lies(Konfiguration::kWebPath)));
    m_Fra_Skin->WaehleQuelle(mode);
    ApplySkin(mode == kWebskin ? kLokalerSkin : mode, m_konfiguration.Lies(Konfiguration::kPath),
              *m_Fra_Rest, m_umgebung.Programmordner);
}

void frmMain::ErsterStart() {
    if (!m_konfiguration.IstAn(Konfiguration::kFirststart)) {
        return;
    }
    const auto starterplan = m_umgebung.Programmordner / "saves" / "basic.tvf";
    if (FileExists(starterplan)) {
        LoadBauliste(starterplan, false);
        std::error_code ohneWort;
        std::filesystem::remove(starterplan, ohneWort);
    }
    m_konfiguration.Schreibe({{Konfiguration::kFirststart, "0"}});
}

void frmMain::StelleWiederHer() {
    if (!FileExists(Autosave())) {
        return;
    }
    const auto entscheidung = EntscheideWiederherstellung(m_konfiguration);
    if (entscheidung == Wiederherstellung::Ungefragt) {
        LadeLetzten();
    }
    if (entscheidung != Wiederherstellung::Fragen) {
        return;
    }
    const auto frage = [this](const char* text) {
        return m_umgebung.Boxen.Stelle(
            {.Text = text, .Titel = "Wiederherstellen...", .Symbol = Meldungssymbol::Frage});
    };
    const bool ja = frage("Möchtest du die letzte Bauliste wiederherstellen?");
    if (frage("Bei jedem Start so verfahren?")) {
        m_konfiguration.Schreibe({{Konfiguration::kAlwaysDoSo, "1"}});
    }
    if (ja) {
        LadeLetzten();
    }
    m_konfiguration.Schreibe({{Konfiguration::kRecover, ja ? "1" : "0"}});
}

std::filesystem::path frmMain::Autosave() const {
    return m_umgebung.Programmordner / "saves" / "autosave.tvf";
}

void frmMain::LadeLetzten() {
    LoadBauliste(Autosave(), true);
    m_Fra_Einstellungen->hide();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_geschlossen) {
        m_geschlossen = true;
        Form_Unload();
    }
    QMainWindow::closeEvent(event);
}

void frmMain::Form_Unload() {
    m_alarme->Verstumme();
    m_umgebung.Netz.BrichAb();
    const Byte quelle = m_Fra_Skin->Quelle();
    const std::string pfad = quelle == kStandardskin ? "~"
                             : quelle == kWebskin
                                 ? kLandeordner
                                 : m_Fra_Skin->Comb_Skins->currentText().toStdString();
    const auto schalter = [](const QCheckBox& box) { return box.isChecked() ? "1" : "0"; };
    m_konfiguration.Schreibe(
        {{Konfiguration::kMode, std::to_string(quelle)},
         {Konfiguration::kPath, pfad},
         {Konfiguration::kWebPath, m_Fra_Skin->txt_Pfad->text().toStdString()},
         {Konfiguration::kBaulistenwecker, schalter(*m_Fra_Rest->Frame6->Chk_BauWeckfunktion)},
         {Konfiguration::kSchlafzeitenwecker, schalter(*m_Fra_Sleep->Chk_Schlafzeitenwecker)},
         {Konfiguration::kItemCount, std::to_string(m_plan.Liste.Zeilen().size())}});
    SaveBauliste(Autosave(), m_plan, m_umgebung.Dateien);
}

void frmMain::mnu_DateiNeu_Click() {
    m_lauf.ResetSimulation(m_plan.Parameter);
    m_texte.NachReset();
    m_Fra_Rest->ZeigeBauzeiten();
    Cmd_Clear_Click();
    m_Fra_Einstellungen->show();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    SetzeHeute();
    m_alarme->LiesKonfiguration();
}

void frmMain::mnu_DateiLaden_Click() {
    const auto datei =
        m_umgebung.Boxen.FragNachDatei(Dialoge::Zweck::Laden, m_umgebung.Programmordner / "saves");
    if (!datei.empty()) {
        LoadBauliste(datei, false);
    }
}

void frmMain::mnu_Datei_Speichern_Click() {
    const auto datei = m_umgebung.Boxen.FragNachDatei(Dialoge::Zweck::Speichern,
                                                      m_umgebung.Programmordner / "saves");
    if (!datei.empty()) {
        SaveBauliste(datei, m_plan, m_umgebung.Dateien);
    }
}

void frmMain::LoadBauliste(const std::filesystem::path& File, bool Silent) {
    const auto profil = Profil::Lade(File, m_umgebung.Dateien);
    if (!profil) {
        m_umgebung.Boxen.Zeige(Ladefehler());
        return;
    }
    Cmd_Clear_Click();
    Standmeldungen meldungen([this] { ZeigePlan(); }, m_umgebung.Boxen);
    if (LadePlan(*profil, m_plan, m_lauf.Planet, meldungen)) {
        ZeigePlan();
        // The toolkit takes the lone sign for a place of its own.
        setWindowTitle(AlsQString(FenstertitelMit(File))
                           .replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
        StarteSimulation(Silent);
    }
}

}  // namespace tarvelin
