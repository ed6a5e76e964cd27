#pragma once

#include "Platform/Linux/X11/Input/XInputConnection.h"
#include "Platform/TrustQuery.h"

#include <memory>
#include <set>
#include <string>

namespace tocca::platform {
class StandardOutput;
}

namespace tocca::platform::linux {

/// Whether X11 capture hears the whole session: an X server with raw input events, and no Wayland compositor around it.
class X11TrustQuery : public TrustQuery {
public:
    explicit X11TrustQuery(StandardOutput& output);

    [[nodiscard]] bool isTrusted() override;

    /// An X server grants what it has without asking, so there is no prompt: what is missing is printed, each reason once.
    bool promptForTrust() override;

    /// What is missing and what helps, in sentences for people; that nothing is, when nothing is.
    [[nodiscard]] std::string explanation();

private:
    enum class Verdict { Trusted, Wayland, NoServer, NoRawEvents };

    [[nodiscard]] Verdict judge();

    StandardOutput& output_;
    std::unique_ptr<XInputConnection> connection_; // kept, so that the next answer costs one system call
    std::set<Verdict> printed_;
};

} // namespace tocca::platform::linux
