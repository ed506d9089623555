// SPDX-License-Identifier: MIT
// Gives a target the files, and those in the folders, that it is called with: what once failed
// stays mended.
#include "FuzzTarget.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

int replayed = 0;

void replay(const std::filesystem::path& path)
{
    std::cerr << path.filename().string() << '\n'; // the last one named is the one that fails
    std::ifstream file(path, std::ios::binary);
    const std::string content{ std::istreambuf_iterator<char>(file), {} };
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(content.data()), content.size());
    ++replayed;
}

} // namespace

int main(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index)
        if (std::filesystem::is_directory(argv[index]))
            for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[index]))
                replay(entry.path());
        else
            replay(argv[index]);
    std::cerr << replayed << " inputs\n";
    return replayed > 0 ? 0 : 1;
}
