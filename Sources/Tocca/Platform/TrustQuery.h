#pragma once

namespace tocca::platform {

/// Whether the desktop lets this program hear the whole session. Threads: main.
class TrustQuery {
public:
    virtual ~TrustQuery() = default;

    /// Answers without prompting, in microseconds once it is true.
    [[nodiscard]] virtual bool isTrusted() = 0;

    /// Answers like `isTrusted`, and first tells the person what is missing where the desktop has a way to.
    virtual bool promptForTrust() = 0;
};

} // namespace tocca::platform
