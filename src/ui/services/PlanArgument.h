// The plan given on the command line, as by a double click on its file.
#pragma once

#include <filesystem>

namespace tarvelin {

/// The absolute path of the first argument; empty if there is none.
[[nodiscard]] std::filesystem::path PlanArgument(int argc, char** argv);

}  // namespace tarvelin
