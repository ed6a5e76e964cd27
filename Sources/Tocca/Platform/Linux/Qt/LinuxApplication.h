#pragma once

#include "Platform/Desktop/Application.h"
#include "Platform/Linux/Freedesktop/ApplicationService.h"
#include "Platform/Linux/Qt/Windows/OwnWindows.h"
#include "Platform/StandardOutput.h"

#include <functional>
#include <memory>
#include <optional>

namespace tocca::platform::linux {

/// The program on the toolkit's event loop; its name on the session bus is what makes it one a session.
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

    /// Whether this is the session's only instance, which is so without a session bus as well. Otherwise the other one has been told
    /// to reopen by now, or has not answered in time. `run` asks as well; asking before spares the start of everything else.
    [[nodiscard]] bool isFirstInstance();

    int run(ApplicationDelegate& delegate) override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void activate() override;
    void terminate() override;

    /// Deals with a wish to see the program again.
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
