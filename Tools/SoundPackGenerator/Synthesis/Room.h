#pragma once

#include <vector>

namespace tocca::soundpack {

/// The dry sound with desk, case and room around it.
///
/// `earlyDb` raises the reflections, `tailDb` the diffuse tail. The room is the same for every sound of every pack.
/// Source: velvet noise as a diffuse tail, Karjalainen and Järveläinen 2007; broadband, it is smooth from some 1,500
/// pulses a second.
std::vector<double> inRoom(const std::vector<double>& dry, double earlyDb, double tailDb);

} // namespace tocca::soundpack
