#pragma once

#include "Platform/Desktop/Application.h"
#include "Platform/Linux/Freedesktop/ApplicationService.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/StandardOutput.h"

#include <functional>
#include <memory>
#include <optional>

namespace tocca::platform::linux {

/// The program on Qt's event loop, once per session: whoever owns its name on the session bus is the one.
///
/// Lifetime: begins after the application object.
class LinuxApplication : public Application {
public:
    struct Surroundings {
        OwnWindows& windows;
        StandardOutput& output;
        std::function<bool()> hasStatusIcon; ///< whether a person can get at the program without a window
    };

    explicit LinuxApplication(Surroundings surroundings);

    /// Whether this is the first instance of the session; without a session bus every one is. The first has been told to reopen, or did
    /// not answer in time, when this returns false. `run` asks too; asking earlier spares a second instance the start of everything else.
    [[nodiscard]] bool isFirstInstance();

    int run(ApplicationDelegate& delegate) override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void terminate() override;

    /// Shows the program again, at once or as soon as it runs.
    void reopen();

private:
    Surroundings surroundings_;
    std::unique_ptr<ApplicationService> service_;
    std::optional<bool> isFirst_;
    ApplicationDelegate* delegate_ = nullptr; // while it runs
    bool hasWishToReopen_ = false;            // from before it ran
    bool hasSaidWhereItIs_ = false;
};

} // namespace tocca::platform::linux
