#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

/// Runs `command` inside a session of its own; comes back only when that is impossible.
void becomePrivate(const std::vector<std::string>& command)
{
    std::vector<std::string> words{PRIVATE_SESSION_SCRIPT, "--"};
    words.insert(words.end(), command.begin(), command.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    execv(pointers.front(), pointers.data());
    std::perror(PRIVATE_SESSION_SCRIPT);
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> command(argv,
                                           argv + argc); // as it was before the framework took its flags out
    testing::InitGoogleTest(&argc, argv);
    const bool isInside = std::getenv("PRIVATE_SESSION") != nullptr;
    if (!isInside && !testing::GTEST_FLAG(list_tests)) {
        // Synthetic keys must never reach the windows of whoever runs this.
        becomePrivate(command);
        return EXIT_FAILURE;
    }
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
