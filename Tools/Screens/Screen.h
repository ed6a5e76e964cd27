#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QString>

namespace tocca::ui {

/// A view in a window without a display, to have its picture taken.
class Screen {
public:
    /// Pictures go to `directory` with `suffix` behind their names.
    Screen(QString directory, QString suffix);

    /// Shows the view of a file of the module with its model.
    void show(const QString& file, QObject& model, QSize size);
    void resize(QSize size);

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Writes what the window shows once nothing in it moves. Errors: prints a line and ends the program.
    void take(const QString& name);

private:
    QImage atRest();

    const QString directory_;
    const QString suffix_;
    QQmlEngine engine_;
    QQuickWindow window_;
};

} // namespace tocca::ui
