#pragma once

#include "Instruments/ControllersOnMemory.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>

namespace tocca::ui {

/// A view in a window without a screen, on controllers in memory. What a person does reaches it as the window system's events.
class ViewTest : public testing::Test {
public:
    ControllersOnMemory machine;

protected:
    ViewTest();

    /// Ends the views before the models that the test owns.
    void TearDown() override;

    /// Shows the view of a file of the module, with its model, in the window.
    QQuickItem* show(const QString& file, QObject& model, QSize size);

    /// The one item of that `objectName` that is in the window; fails the test when there is none.
    [[nodiscard]] QQuickItem* item(const QString& objectName);
    [[nodiscard]] bool has(const QString& objectName);

    /// The texts of all visible items below the named one, in their order in the tree.
    [[nodiscard]] QStringList texts(const QString& objectName);

    /// What the named item's property holds.
    [[nodiscard]] QVariant property(const QString& objectName, const char* name);

    [[nodiscard]] QString text(const QString& objectName) { return property(objectName, "text").toString(); }

    /// Makes every change of what is shown immediate, as the desktop may ask for; `show` does so.
    void reduceMotion();

    /// Brings the named item into sight as the keyboard's focus would, then clicks its middle.
    void click(const QString& objectName);

    /// Gives the named item the keyboard's focus as a person would see it.
    void focus(const QString& objectName);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);

    struct Switch {
        const char* name;
        Published<bool>& setting;
    };

    /// Expects of the named controls that they show their settings, whoever changes them, and invert them by click and by space bar.
    void expectSwitches(std::initializer_list<Switch> switches);

    /// Turns the wheel over the named item. Units: notches, upwards positive.
    void wheel(const QString& objectName, double notches);

    /// Moves two fingers on a touchpad over the named item. Units: eighths of a degree, upwards positive.
    void swipe(const QString& objectName, int angle);

    /// A key that is held goes on being pressed.
    void repeat(Qt::Key key);

    /// Presses Tab until the focus is where it began; the names of the items it stood on (or their accessible names), in order.
    [[nodiscard]] QStringList traversal();

    /// The controls below the window's content that can be used but have no accessible name, or no role that says what they do.
    [[nodiscard]] QStringList unnamedControls();

    /// Runs the event loop until `condition` holds, for up to five seconds.
    [[nodiscard]] static bool eventually(const std::function<bool()>& condition);

    /// Runs events until the window has come to rest.
    void settle();

    /// What the window shows.
    [[nodiscard]] QImage grab();

    QQmlEngine engine;
    QQuickWindow window;

private:
    QList<QQuickItem*> views_;
};

} // namespace tocca::ui
