// Where the program's files lie: beside it, or with the user.
#pragma once

#include <filesystem>

namespace tarvelin {

/// The folder of `config.cfg`, `saves`, `img` and `mfx` for this start. It is the folder of the
/// running program if `img` lies there and it can be written. Else it is `nutzerordner`, to which
/// the files of ours that are missing are added, from the program's folder or from
/// `share/tarvelin` beside the program's `bin`; the starter plan only as long as no configuration
/// lies there. No other place is ever written. What can't be copied is passed over.
[[nodiscard]] std::filesystem::path BestimmeProgrammordner(
    const std::filesystem::path& ordner_des_programms, const std::filesystem::path& nutzerordner);

}  // namespace tarvelin
