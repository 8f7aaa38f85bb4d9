// Asks for the wide arguments, as `argv` loses letters that the system's code page lacks.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// Needs windows.h first.
#include <shellapi.h>

#include <string>

#include "ui/services/PlanArgument.h"

namespace tarvelin {

std::filesystem::path PlanArgument(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::filesystem::path plan;
    if (words != nullptr && count > 1) {
        // `std::filesystem::absolute` would take a network share for a folder on this disk.
        std::wstring full(::GetFullPathNameW(words[1], 0, nullptr, nullptr), L'\0');
        full.resize(
            ::GetFullPathNameW(words[1], static_cast<DWORD>(full.size()), full.data(), nullptr));
        plan = full;
    }
    ::LocalFree(words);
    return plan;
}

}  // namespace tarvelin
