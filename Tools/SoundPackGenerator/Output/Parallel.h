#pragma once

#include <cstddef>
#include <functional>

namespace tocca::soundpack {

/// Calls `work(0)` … `work(count - 1)`, on every core, in no fixed order; returns when all have returned.
///
/// Threads: `work` is called from several threads at once, so calls may share only what is constant or their own.
/// Errors: what `work` throws ends the program.
void inParallel(std::size_t count, const std::function<void(std::size_t)>& work);

} // namespace tocca::soundpack
