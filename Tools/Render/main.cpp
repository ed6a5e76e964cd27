#include "Render/Rendering.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char* kUsage =
    "usage: tocca-render [--pack NAME|FOLDER] [--seed NUMBER] [--speed WPM] [--releases]\n"
    "                    --text TEXT | SCORE  OUTPUT.wav|OUTPUT.flac\n";

struct Wishes {
    tocca::render::Sound sound;
    std::string text;
    bool hasText = false;
    std::uint32_t wordsPerMinute = 60;
    std::vector<std::string> files;
};

template <class Number>
bool parse(std::string_view text, Number& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Takes in an option with its value; false when there is none of that name, or the value makes no sense.
bool understand(const std::string& option, const std::string& value, Wishes& wishes)
{
    if (option == "--pack") {
        wishes.sound.pack = value;
        return true;
    }
    if (option == "--text") {
        wishes.text = value;
        wishes.hasText = true;
        return true;
    }
    if (option == "--seed") {
        return parse(value, wishes.sound.seed);
    }
    return option == "--speed" && parse(value, wishes.wordsPerMinute);
}

/// Returns false when that makes no sense.
bool understand(const std::vector<std::string>& arguments, Wishes& wishes)
{
    constexpr std::uint32_t kFastest = 1000;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        if (option == "--releases") {
            wishes.sound.playsReleases = true;
        } else if (!option.starts_with("--")) {
            wishes.files.push_back(option);
        } else if (i + 1 == arguments.size() || !understand(option, arguments[i + 1], wishes)) {
            return false;
        } else {
            ++i;
        }
    }
    return wishes.files.size() == (wishes.hasText ? 1U : 2U) && wishes.wordsPerMinute > 0 &&
           wishes.wordsPerMinute <= kFastest;
}

tocca::Result<std::vector<tocca::render::ScoredStroke>> strokesOf(const Wishes& wishes)
{
    if (wishes.hasText) {
        return tocca::render::typed(wishes.text, wishes.wordsPerMinute, wishes.sound.seed);
    }
    std::ifstream file(wishes.files.front());
    if (!file) {
        return tocca::Error{wishes.files.front() + ": cannot be read"};
    }
    return tocca::render::parseScore(std::string(std::istreambuf_iterator<char>(file), {}));
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int kMisused = 2;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments == std::vector<std::string>{"--help"}) {
        std::cout << kUsage;
        return 0;
    }
    Wishes wishes;
    if (!understand(arguments, wishes)) {
        std::cerr << kUsage;
        return kMisused;
    }
    const auto fail = [](const std::string& reason) {
        std::cerr << "tocca-render: " << reason << '\n';
        return 1;
    };
    try {
        const auto strokes = strokesOf(wishes);
        if (!strokes) {
            return fail(strokes.error().describe());
        }
        const auto stereo = tocca::render::rendered(strokes.value(), wishes.sound);
        if (!stereo) {
            return fail(stereo.error().describe());
        }
        const auto written = tocca::render::writeSound(stereo.value(), wishes.files.back());
        return written ? 0 : fail(written.error().describe());
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
