#pragma once

#include "Support/DisplayText.h"
#include "Support/Result.h"

#include <stdexcept>

namespace tocca::audio {

/// An import that failed; `what` says why, in one line for people.
class PackImportError : public std::runtime_error {
public:
    explicit PackImportError(const Error& reason)
        : std::runtime_error(displayText(reason.describe()))
    {}
};

} // namespace tocca::audio
