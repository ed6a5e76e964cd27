#pragma once

#include <QString>

namespace tocca::ui {

/// Takes pictures of every page of the Studio window in its usual, least and largest size, and of its rarer states.
void takeStudioScreens(const QString& directory, const QString& suffix);

} // namespace tocca::ui
