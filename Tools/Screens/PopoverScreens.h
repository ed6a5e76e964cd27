#pragma once

#include <QString>

namespace tocca::ui {

/// Takes pictures of the popover from top to bottom, with little and with much to show, and of the keyboard's focus in it.
void takePopoverScreens(const QString& directory, const QString& suffix);

} // namespace tocca::ui
