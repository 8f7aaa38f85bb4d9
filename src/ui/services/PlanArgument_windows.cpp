// The narrow arguments have lost letters that the system's code page lacks.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// Needs the one above.
#include <shellapi.h>

#include <string>

#include "ui/services/PlanArgument.h"

namespace tarvelin {

std::filesystem::path Planargument(int /*argc*/, char** /*argv*/) {
    int anzahl = 0;
    wchar_t** const worte = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    std::filesystem::path plan;
    if (worte != nullptr && anzahl > 1) {
        // The library's own answer takes a share for a folder of this disk.
        std::wstring voll(::GetFullPathNameW(worte[1], 0, nullptr, nullptr), L'\0');
        voll.resize(
            ::GetFullPathNameW(worte[1], static_cast<DWORD>(voll.size()), voll.data(), nullptr));
        plan = voll;
    }
    ::LocalFree(worte);
    return plan;
}

}  // namespace tarvelin
