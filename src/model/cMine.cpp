// Yield and energy need of the mines.
#include "model/cMine.h"

#include <cmath>

#include "model/Bauzeitfaktor.h"
#include "model/Energiewachstum.h"

namespace tarvelin {

void cMine::SetProdfaktor(float theFaktor) {
    m_minenProdfaktor = theFaktor;
    Globale().BilanzVeraltet = true;
}

// The shared rate is what `GetProduktion` gives at any moment at which time passes: a change of the
// level refreshes it at once, one of the mine's factor or of the balance with the balance of the
// same event, one of speed or temperature with the reset that brings it.
void cMine::Passtime(Long SecondsToPass) {
    m_vorrat = m_vorrat +
               Festkomma::AusDouble((m_proStunde * SecondsToPass).AlsDouble() / kSekundenJeStunde);
}

double cMine::GetEnergieVerbrauch(Long ExterneStufe, float externerProduktionsfaktor) const {
    if (ExterneStufe == kEigeneStufe) {
        // The first two products are rounded to single precision, the last one isn't.
        const float bedarf = m_minenProdfaktor * m_kennzahlen.C * static_cast<float>(Stufe());
        return std::trunc(static_cast<double>(bedarf) * HochEinsKommaEins(Stufe()));
    }
    return std::trunc(static_cast<double>(externerProduktionsfaktor) *
                      static_cast<double>(m_kennzahlen.C) * ExterneStufe *
                      HochEinsKommaEins(ExterneStufe));
}

// The order of the operations is part of the result. The base income stands inside the floor,
// untouched by the energy balance and the mine's factor; the speed factor doubles what the floor
// leaves.
Festkomma cMine::GetProduktion(Long ExterneStufe, float externerProduktionsfaktor) const {
    const bool eigene = ExterneStufe == kEigeneStufe;
    const Long stufe = eigene ? Stufe() : ExterneStufe;
    const auto faktor = static_cast<double>(eigene ? m_minenProdfaktor : externerProduktionsfaktor);
    const double ertrag =
        ((m_kennzahlen.A * stufe) * HochEinsKommaEins(stufe) * Temperaturfaktor()) *
        Globale().ProdFaktor.AlsDouble();
    const auto proStunde = Rundung::floor(faktor * ertrag + m_kennzahlen.B);
    return Festkomma::AusGanzzahl(proStunde) * Globale().Speedfaktor;
}

void cMine::NachInit() {
    m_minenProdfaktor = 1.0F;
    RefreshProduktion();
}

void cMine::NachFinish() {
    RefreshProduktion();
}

}  // namespace tarvelin
