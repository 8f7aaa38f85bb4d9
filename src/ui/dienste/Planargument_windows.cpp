// The narrow arguments have lost letters that the system's code page lacks.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// Needs the one above.
#include <shellapi.h>

#include "ui/dienste/Planargument.h"

namespace tarvelin {

std::filesystem::path Planargument(int /*argc*/, char** /*argv*/) {
    int anzahl = 0;
    wchar_t** const worte = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    std::filesystem::path plan;
    if (worte != nullptr && anzahl > 1) {
        std::error_code fehler;
        plan = std::filesystem::absolute(worte[1], fehler);
    }
    ::LocalFree(worte);
    return plan;
}

}  // namespace tarvelin
