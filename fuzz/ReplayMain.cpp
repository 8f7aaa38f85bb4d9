// Plays inputs that were kept once more, without the fuzzer: each file of the named folders.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "FuzzInput.h"

int main(int anzahl, char** argumente) {
    std::vector<std::filesystem::path> dateien;
    for (int i = 1; i < anzahl; ++i) {
        for (const auto& eintrag : std::filesystem::directory_iterator(argumente[i])) {
            dateien.push_back(eintrag.path());
        }
    }
    std::ranges::sort(dateien);
    for (const auto& datei : dateien) {
        std::ifstream strom(datei, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(strom), {}};
        // Told before it is played: the last name in front of a crash is the culprit's.
        std::cerr << datei.filename().string() << '\n';
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return dateien.empty() ? 1 : 0;
}
