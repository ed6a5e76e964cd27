#pragma once

#include <QString>

class QObject;
class QQmlEngine;
class QQuickItem;

namespace tocca::ui {

/// Makes the item of a view's file, given from the module's root ("Popover/MenuBarView.qml"), with its required property `model` set. The
/// item belongs to `parent`, and fills it. Errors: aborts with the engine's message, since the files are part of the program.
[[nodiscard]] QQuickItem* makeQmlView(QQmlEngine& engine, const QString& file, QObject& model,
                                      QQuickItem& parent);

/// Makes every change of what the engine's views show immediate, or gradual as it is at first.
void setReducesMotion(QQmlEngine& engine, bool reducesMotion);

} // namespace tocca::ui
