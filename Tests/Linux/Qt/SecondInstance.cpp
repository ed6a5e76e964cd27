#include "Platform/Linux/Qt/LinuxApplication.h"
#include "Platform/Linux/System/LinuxStandardOutput.h"

#include <QGuiApplication>

namespace {

/// Ends the program as soon as it runs.
class Delegate final : public tocca::platform::ApplicationDelegate {
public:
    void applicationDidFinishLaunching() override { QCoreApplication::exit(2); }

    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override { return true; }

    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() override { return false; }
};

} // namespace

/// The program launched again, on the display whose name is given: 0 when another instance was there, 1 when it does not answer, 2 when it would have run.
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    tocca::platform::linux::OwnWindows windows;
    tocca::platform::linux::LinuxStandardOutput output;
    tocca::platform::linux::LinuxApplication program({.display = argc > 1 ? argv[1] : "here",
                                                      .launch = {},
                                                      .windows = windows,
                                                      .output = output,
                                                      .hasStatusIcon = [] { return true; }});
    Delegate delegate;
    return program.run(delegate);
}
