// The start planet: the shared state of a run and the twenty items over it.
#pragma once

#include "model/GlobaleVariablen.h"
#include "model/cDeuteriumMine.h"
#include "model/cEnergietechnik.h"
#include "model/cForschungslabor.h"
#include "model/cKleineSchildkuppel.h"
#include "model/cKleinerTransporter.h"
#include "model/cKristallMine.h"
#include "model/cLasertechnik.h"
#include "model/cLeichterJaeger.h"
#include "model/cLeichterLaser.h"
#include "model/cMetallMine.h"
#include "model/cRaketenwerfer.h"
#include "model/cRaumschiffWerft.h"
#include "model/cRoboterFabrik.h"
#include "model/cSchildtechnik.h"
#include "model/cSchwererLaser.h"
#include "model/cSolarKraftWerk.h"
#include "model/cSolarsatellit.h"
#include "model/cSpionageTechnik.h"
#include "model/cSpionagesonde.h"
#include "model/cVerbrennungstriebwerktechnik.h"

namespace tarvelin {

/// One for each run side by side; two never meet. It keeps what the last run or reset left.
class Startplanet {
  public:
    Startplanet();

    GlobaleVariablen Globale;

    cDeuteriumMine DeutMine{Globale};
    cKristallMine KrisMine{Globale};
    cMetallMine MetMine{Globale};
    cSolarKraftWerk SKW{Globale};
    cRoboterFabrik Robo{Globale};
    cRaumschiffWerft Werft{Globale};
    cForschungslabor Folab{Globale};
    cSolarsatellit Solsats{Globale};
    cRaketenwerfer Rakws{Globale};
    cLeichterLaser lLasers{Globale};
    cSchwererLaser sLasers{Globale};
    cEnergietechnik ENTech{Globale};
    cVerbrennungstriebwerktechnik VerbTech{Globale};
    cLasertechnik LaserTech{Globale};
    cSpionagesonde Spios{Globale};
    cLeichterJaeger LJs{Globale};
    cSpionageTechnik SpioTech{Globale};
    cKleinerTransporter KTs{Globale};
    cSchildtechnik SchTech{Globale};
    cKleineSchildkuppel klSchK{Globale};

    [[nodiscard]] cItem& Item(ItemId item) { return *m_items[item]; }
    [[nodiscard]] const cItem& Item(ItemId item) const { return *m_items[item]; }

    /// Start stocks, clock at 0, all items at level 0. Speed factor, sleep windows and start
    /// date stay.
    void ResetSimulation(Integer temperatur);

    /// Works out need, supply and factor of the energy from the levels as they stand, and from
    /// the factor what the mines yield. Does nothing unless `Globale.BilanzVeraltet`: most events
    /// of a run leave the balance as it is.
    void EnergieBilanz();

    /// Lets the mines produce and the clock go on by `SecondsToPass` seconds, which may be
    /// negative: the mines then give back what they had yielded.
    void VergeheZeit(Long SecondsToPass);

  private:
    void InitAlle();
    JeItem<cItem*> m_items{};
};

}  // namespace tarvelin
