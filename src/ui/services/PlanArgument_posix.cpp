// Arguments are the bytes of the path.
#include "ui/services/PlanArgument.h"

namespace tarvelin {

std::filesystem::path Planargument(int argc, char** argv) {
    std::error_code fehler;
    return argc < 2 ? std::filesystem::path() : std::filesystem::absolute(argv[1], fehler);
}

}  // namespace tarvelin
