// The argument is the path.
#include "ui/services/PlanArgument.h"

namespace tarvelin {

std::filesystem::path PlanArgument(int argc, char** argv) {
    std::error_code error;
    return argc < 2 ? std::filesystem::path() : std::filesystem::absolute(argv[1], error);
}

}  // namespace tarvelin
