// All that belongs to a plan: what the user edits and a save file keeps.
#pragma once

#include "plan/Bauliste.h"
#include "plan/Schlaftabelle.h"
#include "plan/Startparameter.h"

namespace tarvelin {

struct Plan {
    Startparameter Parameter;
    Bauliste Liste;
    Schlaftabelle Schlafzeiten;
    /// Whether the names under the item pictures are shown.
    bool ShowDesc = true;
};

}  // namespace tarvelin
