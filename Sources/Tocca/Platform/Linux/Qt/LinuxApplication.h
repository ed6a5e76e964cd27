#pragma once

#include "Platform/Desktop/Application.h"
#include "Platform/Linux/Freedesktop/ApplicationService.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/StandardOutput.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tocca::platform::linux {

/// The program on Qt's event loop, once per display: whoever owns its name on the session bus is the one.
///
/// Lifetime: begins after the application object.
class LinuxApplication : public Application {
public:
    struct Surroundings {
        std::string display; ///< as `chooseDisplay` calls it
        QByteArray launch;   ///< what the desktop calls this launch, if it does
        OwnWindows& windows;
        StandardOutput& output;
        std::function<bool()> hasStatusIcon; ///< whether a person can get at the program without a window
    };

    explicit LinuxApplication(Surroundings surroundings);

    /// What a second instance of the display is to end with; nothing for the first, which without a session bus every one is. Then the first
    /// has been told to reopen (0), or did not answer in time (1), which is said. `run` asks too; asking earlier spares a second instance
    /// the start of everything else.
    [[nodiscard]] std::optional<int> statusOfSecondInstance();

    int run(ApplicationDelegate& delegate) override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void terminate() override;

    /// Shows the program again, at once or as soon as it runs.
    void reopen();

private:
    Surroundings surroundings_;
    std::unique_ptr<ApplicationService> service_;
    std::optional<ApplicationService::Claim> claim_;
    ApplicationDelegate* delegate_ = nullptr; // from the end of launching until the loop ends
    bool hasWishToReopen_ = false;            // from before that
    bool hasSaidWhereItIs_ = false;
};

} // namespace tocca::platform::linux
