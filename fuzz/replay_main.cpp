// Runs a fuzz target over every file of a directory, each whole and cut off at a few places.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: %s DIRECTORY\n", arguments[0]);
        return 2;
    }
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        for (std::size_t eighths = 1; eighths <= 8; ++eighths) {
            const std::string input = bytes.substr(0, bytes.size() * eighths / 8);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
