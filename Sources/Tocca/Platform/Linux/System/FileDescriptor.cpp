#include "Platform/Linux/System/FileDescriptor.h"

#include <unistd.h>

namespace tocca::platform::linux {

FileDescriptor::~FileDescriptor()
{
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

} // namespace tocca::platform::linux
