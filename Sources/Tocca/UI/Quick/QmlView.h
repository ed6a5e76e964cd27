#pragma once

#include <QQuickItem>
#include <QString>

class QQmlEngine;

namespace tocca::ui {

/// Makes the item of a view's file, given from the module's root ("Popover/MenuBarView.qml"), with its required property `model` set. The
/// item belongs to `parent`, and fills it. Errors: aborts with the engine's message, since the files are part of the program.
[[nodiscard]] QQuickItem* makeQmlView(QQmlEngine& engine, const QString& file, QObject& model,
                                      QQuickItem& parent);

/// Makes every change of what the engine's views show immediate, or gradual as it is at first.
void setReducesMotion(QQmlEngine& engine, bool reducesMotion);

/// Makes the view that `Model::kFile` names, with a model of its own on `controller`, which outlives it.
template <class Model, class Controller>
[[nodiscard]] QQuickItem* makeOverlayView(QQmlEngine& engine, Controller& controller, QQuickItem& parent)
{
    auto* model = new Model(controller, &parent);
    QQuickItem* view = makeQmlView(engine, QString::fromLatin1(Model::kFile), *model, parent);
    model->setParent(view);
    return view;
}

} // namespace tocca::ui
