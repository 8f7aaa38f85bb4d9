// The plan with which the program is called, as a double click on its file does.
#pragma once

#include <filesystem>

namespace tarvelin {

/// The absolute path of the first argument; empty if there is none.
[[nodiscard]] std::filesystem::path PlanArgument(int argc, char** argv);

}  // namespace tarvelin
